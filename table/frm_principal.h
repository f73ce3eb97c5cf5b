// Frm_Principal, the table: the one form the game is played on. Its members are its controls, by
// the names every routine of the game uses, declared here in the order they are created. The
// order matters to the screen: a container's children are stacked in creation order, the first at
// the bottom, so the fillers are made before what stands on them and the opponent's speech balloon
// after the strips it lies over. Controls of the form itself have no parent.
//
// Geometry is in twips (15 to the pixel), colours 0xRRGGBB. A control given no back colour here
// draws its container through. The place formulas of the control arrays, the captions at design,
// the tab order, the image stores and the right-click events are in frm_principal.cpp.
//
// The column of strips, top to bottom, each a toolbar 11610 wide used as a container:
//   ToolbarPokerCoins   0  705   the opponent's stack: four chip places, four piles, money box
//   ToolbarPoker      720 1590   the opponent's cards and face panel
//   ToolbarMesa      2325 1530   the green table
//   ToolbarPlayer    3840 1590   the player's cards, card key places and face panel
//   ToolbarPlayerCoins 5490 705  the player's stack
// and below them, at Top 6570, the four command bars, hidden until a phase needs one.
//
// Toolbar buttons count from 1. The coin toolbars have eight: the even ones carry the keys "F01",
// "F05", "F10", "F50" and show the piles of ImageListPotes (a chip place PicFichas..(i) covers the
// left of the pitch of 1920 twips, its pile button follows from Left 600 + 1920 x i); the odd ones
// are free places under the chip pictures. The card toolbars have ten: the even ones show the
// cards from ImageListBarajas, the odd ones are separators. ToolbarBaraja has one place per card
// of a full deck, buttons 1 to 52, all of them places (no separators): place i shows Baralho(i).
#pragma once

#include <cstdint>
#include <memory>

#include "platform/engine.h"
#include "platform/forms.h"

struct FrmPrincipal : vb::Form {
  FrmPrincipal();
  FrmPrincipal(const FrmPrincipal&) = delete;
  FrmPrincipal& operator=(const FrmPrincipal&) = delete;

  // Colours of the table.
  static constexpr std::int64_t kSemCor = -1;  // not given: the container shows through
  static constexpr std::int64_t kFeltro = 0x1A6802;
  static constexpr std::int64_t kBranco = 0xFFFFFF;
  static constexpr std::int64_t kCinza = 0xC0C0C0;

 private:
  // A control of this form inside `parent` (the form itself for a control of the form), placed,
  // with its back and text colours when given.
  vb::Control& Make(vb::Kind kind, const char* name, vb::Control& parent, int left, int top,
                    int width, int height, std::int64_t back = kSemCor,
                    std::int64_t fore = kSemCor);
  vb::Control& Make(vb::Kind kind, const char* name, vb::Control& parent);
  vb::Control& MakeMenu(const char* name, const char* caption, vb::Control& parent);
  vb::ControlArray<> MakeFrameToFiler();

 public:
  // --- outside FraPrincipal: the debugging line (behind everything), the side frames and the
  // --- deck strip that AjustarTela brings in when the deck is shown
  vb::Control& LblMusicTime =
      Make(vb::Kind::Label, "LblMusicTime", *this, 0, 0, 1185, 465, kFeltro);
  vb::Control& FrameFromLeft =
      Make(vb::Kind::Frame, "FrameFromLeft", *this, 0, 1590, 450, 7620, kFeltro);
  vb::Control& FrameFromRight =
      Make(vb::Kind::Frame, "FrameFromRight", *this, 10365, 1590, 1335, 7620, kFeltro);
  vb::Control& ToolbarBaraja = Make(vb::Kind::Toolbar, "ToolbarBaraja", *this, 0, 0, 11610, 1590);
  vb::Control& FraPrincipal =
      Make(vb::Kind::Frame, "FraPrincipal", *this, 0, 0, 9915, 7785, kBranco);

  // --- fillers of felt or grey behind the strips (19: 0 to 11 on FraPrincipal, 12 to 14 on
  // --- FrameFromLeft, 15 to 18 on FrameFromRight); they answer the right mouse button
  vb::ControlArray<> FrameToFiler = MakeFrameToFiler();
  vb::Control& Shape1 = Make(vb::Kind::Shape, "Shape1", FrameToFiler(2), 45, 180, 9825, 15);

  // --- the opponent's stack
  vb::Control& ToolbarPokerCoins =
      Make(vb::Kind::Toolbar, "ToolbarPokerCoins", FraPrincipal, 0, 0, 11610, 705);
  vb::ControlArray<> PicFichasPoker;       // 4, Left 1920 x i, Top 50, 615 x 615; display only
  vb::ControlArray<> LabelPokerFichasPOT;  // 4, one in each chip place: "01" "05" "10" "50"
  vb::Control& FraPokerMoney =
      Make(vb::Kind::Frame, "FraPokerMoney", ToolbarPokerCoins, 7750, 0, 2150, 735, kFeltro);
  vb::Control& LabelPokerMoney = Make(vb::Kind::Label, "LabelPokerMoney", FraPokerMoney, 135, 315,
                                      1995, 285, kFeltro, 0xFF8000);
  vb::Control& LabelPokerFichas = Make(vb::Kind::Label, "LabelPokerFichas", FraPokerMoney, 360, 45,
                                       1500, 240, kFeltro, 0xFFFF00);

  // --- the opponent's cards
  vb::Control& ToolbarPoker =
      Make(vb::Kind::Toolbar, "ToolbarPoker", FraPrincipal, 0, 720, 11610, 1590);
  vb::Control& FraPokerFace =
      Make(vb::Kind::Frame, "FraPokerFace", ToolbarPoker, 6920, 0, 2985, 1680, kFeltro);
  vb::Control& PicturePokerFace =
      Make(vb::Kind::PictureBox, "PicturePokerFace", FraPokerFace, 90, 45, 555, 555);
  vb::ControlArray<> LabelPokerCaption;  // 3: speaker, first line, second line

  // --- the table
  vb::Control& ToolbarMesa =
      Make(vb::Kind::Toolbar, "ToolbarMesa", FraPrincipal, 0, 2325, 11610, 1530);
  vb::Control& FraMesa = Make(vb::Kind::Frame, "FraMesa", ToolbarMesa, 45, 0, 9850, 1550, kFeltro);
  vb::Control& FraCoins = Make(vb::Kind::Frame, "FraCoins", FraMesa, 1845, 630, 6540, 285, kFeltro);
  vb::Control& FraPokerCoins =
      Make(vb::Kind::Frame, "FraPokerCoins", FraMesa, 1845, 0, 6540, 555, kFeltro);
  vb::Control& FraPlayerCoins =
      Make(vb::Kind::Frame, "FraPlayerCoins", FraMesa, 1845, 990, 6585, 555, kFeltro);
  vb::Control& PictureMão = Make(vb::Kind::PictureBox, "PictureMão", FraMesa, 1170, 225, 195, 150);
  vb::Control& LabelManoMesa =
      Make(vb::Kind::Label, "LabelManoMesa", FraMesa, 180, 135, 1005, 285, kFeltro, 0xFF80FF);
  vb::Control& LabelMesa =
      Make(vb::Kind::Label, "LabelMesa", FraMesa, 270, 540, 1230, 240, kFeltro, 0x00FF00);
  vb::Control& LabelMesaFichas =
      Make(vb::Kind::Label, "LabelMesaFichas", FraMesa, 225, 855, 1590, 240, kFeltro, 0xFFFF00);
  vb::Control& LabelMesaMoney =
      Make(vb::Kind::Label, "LabelMesaMoney", FraMesa, 225, 1125, 1590, 285, kFeltro, 0xFF8000);
  vb::Control& LabelPlayerMesaTotalCoims = Make(vb::Kind::Label, "LabelPlayerMesaTotalCoims",
                                                FraMesa, 8595, 1215, 1230, 240, kFeltro, 0x00FFFF);
  vb::Control& LabelPokerMesaTotalCoims = Make(vb::Kind::Label, "LabelPokerMesaTotalCoims", FraMesa,
                                               8595, 45, 1230, 240, kFeltro, 0xFFFF00);
  vb::ControlArray<> PictureCoin;        // 48 table chips of the centre pot, hidden
  vb::ControlArray<> PicturePokerCoin;   // 120 of the opponent's stake, hidden, filling downward
  vb::ControlArray<> PicturePlayerCoin;  // 120 of the player's stake, hidden, filling upward

  // --- the player's cards
  vb::Control& ToolbarPlayer =
      Make(vb::Kind::Toolbar, "ToolbarPlayer", FraPrincipal, 0, 3840, 11610, 1590);
  vb::Control& FraPlayerFace =
      Make(vb::Kind::Frame, "FraPlayerFace", ToolbarPlayer, 6920, 0, 2985, 1680, kFeltro);
  vb::Control& PicturePlayerFace =
      Make(vb::Kind::PictureBox, "PicturePlayerFace", FraPlayerFace, 90, 45, 540, 540);
  vb::ControlArray<> LabelPlayerCaption;    // 3, as LabelPokerCaption
  vb::ControlArray<> PicCartasPlayer;       // 5 card key places, tab stops
  vb::ControlArray<> LabelPlayerCartasROT;  // 5, one in each card key place, "1"
  vb::ControlArray<> FraCartasFocus;        // 20 thin bars, four round each card, hidden

  // --- the player's stack
  vb::Control& ToolbarPlayerCoins =
      Make(vb::Kind::Toolbar, "ToolbarPlayerCoins", FraPrincipal, 0, 5490, 11610, 705);
  vb::ControlArray<> PicFichasPlayer;       // 4 chip places, tab stops 0 to 3
  vb::ControlArray<> LabelPlayerFichasPOT;  // 4, one in each chip place: "01" "05" "10" "50"
  vb::ControlArray<> FraFichasFocus;        // 16 thin bars, four round each pile, hidden
  vb::Control& FraPlayerMoney =
      Make(vb::Kind::Frame, "FraPlayerMoney", ToolbarPlayerCoins, 7750, 0, 2150, 735, kFeltro);
  vb::Control& LabelPlayerFichas = Make(vb::Kind::Label, "LabelPlayerFichas", FraPlayerMoney, 360,
                                        45, 1500, 240, kFeltro, 0x00FFFF);
  vb::Control& LabelPlayerMoney = Make(vb::Kind::Label, "LabelPlayerMoney", FraPlayerMoney, 110,
                                       315, 1995, 285, kFeltro, 0x00FF00);

  // --- the command bars, hidden at design. The arrays CmdSair (0 to 2), CmdAcabei and
  // --- CmdDesfazer (0 and 1) have one element in each bar they serve; Line1 (15) draws the
  // --- raised edges of the buttons
  vb::ControlArray<> CmdSair;
  vb::ControlArray<> CmdAcabei;
  vb::ControlArray<> CmdDesfazer;
  vb::ControlArray<> Line1;
  vb::Control& FraApostaPlayer =
      Make(vb::Kind::Frame, "FraApostaPlayer", FraPrincipal, 735, 6570, 6810, 330, kCinza);
  vb::Control& CmdPago =
      Make(vb::Kind::CommandButton, "CmdPago", FraApostaPlayer, 45, 45, 1275, 225, 0x00FF00);
  vb::Control& CmdTudo =
      Make(vb::Kind::CommandButton, "CmdTudo", FraApostaPlayer, 1350, 45, 1860, 225, 0xE0E0E0);
  // CmdDesfazer(0) 3240, CmdSair(0) 4635, CmdAcabei(0) 6030
  vb::Control& FraPedeCartasPlayer =
      Make(vb::Kind::Frame, "FraPedeCartasPlayer", FraPrincipal, 2565, 6570, 3615, 330, kCinza);
  // CmdDesfazer(1) 45, CmdSair(1) 1440, CmdAcabei(1) 2835
  vb::Control& FraMaisUma =
      Make(vb::Kind::Frame, "FraMaisUma", FraPrincipal, 3060, 6570, 2985, 330, kCinza);
  vb::Control& CmdMaisUma =
      Make(vb::Kind::CommandButton, "CmdMaisUma", FraMaisUma, 45, 45, 1455, 225, 0xFFFF00);
  // CmdSair(2) 1530
  vb::Control& FraConfrontarJogos =
      Make(vb::Kind::Frame, "FraConfrontarJogos", FraPrincipal, 3240, 6570, 2130, 330, kCinza);
  vb::Control& CmdConfrontar = Make(vb::Kind::CommandButton, "CmdConfrontar", FraConfrontarJogos,
                                    45, 45, 1995, 225, 0xC0C000);

  // --- the opponent's speech balloon, over the right of the table; hidden and disabled at design
  vb::Control& FraPokerMensagem =
      Make(vb::Kind::Frame, "FraPokerMensagem", FraPrincipal, 7005, 1410, 2850, 2130);
  vb::Control& PicturePokerMensagem =
      Make(vb::Kind::PictureBox, "PicturePokerMensagem", FraPokerMensagem, 0, 0, 2850, 2130);
  vb::Control& LabelPokerMensagem =
      Make(vb::Kind::Label, "LabelPokerMensagem", PicturePokerMensagem, 135, 495, 2580, 1545,
           kFeltro, 0x0E0000);

  // --- timers, kept in FrameToFiler(17). Ticks due at the same moment run in timer_order:
  // --- Timer1 0, TimerKeyPot 1, (FrmBarajando's Timer1 2), TimerEspera 3
  vb::Control& TimerEspera = Make(vb::Kind::Timer, "TimerEspera", FrameToFiler(17));
  vb::Control& Timer1 = Make(vb::Kind::Timer, "Timer1", FrameToFiler(17));
  vb::Control& TimerKeyPot = Make(vb::Kind::Timer, "TimerKeyPot", FrameToFiler(17));

  // --- image stores (filled from table/image_stores.h)
  vb::ImageList& ImageListFACES = AddImageList("ImageListFACES");    // 27 faces, by position
  vb::ImageList& ImageListExtras = AddImageList("ImageListExtras");  // 8, the second unkeyed
  vb::ImageList& ImageListFundos = AddImageList("ImageListFundos");  // 22 card backs, by position
  vb::ImageList& ImageListPotes = AddImageList("ImageListPotes");    // 124 piles "F01_00".."F50_30"
  vb::ImageList& ImageListBarajas = AddImageList("ImageListBarajas");  // 52 cards, FRENTE, DORSO

  // --- the right-click menu (opens only in Fase 50); separators L1 to L5 read "-"
  vb::Control& MnuPopup = MakeMenu("MnuPopup", "PopUp", *this);
  vb::Control& MnuPartida = MakeMenu("MnuPartida", "Partida", MnuPopup);
  vb::Control& MnuNova = MakeMenu("MnuNova", "Nova", MnuPartida);
  vb::Control& MnuCarregar = MakeMenu("MnuCarregar", "Carregar", MnuPartida);
  vb::Control& MnuSalvar = MakeMenu("MnuSalvar", "Salvar", MnuPartida);
  vb::Control& MnuConfiguração = MakeMenu("MnuConfiguração", "Configuração", MnuPopup);
  vb::Control& MnuNroCartas = MakeMenu("MnuNroCartas", "Numero de Cartas", MnuConfiguração);
  vb::Control& MnuNroFichas = MakeMenu("MnuNroFichas", "Numero de Fichas", MnuConfiguração);
  vb::Control& MnuTroca = MakeMenu("MnuTroca", "Quantas Cartas Troca", MnuConfiguração);
  vb::Control& L1 = MakeMenu("L1", "-", MnuConfiguração);
  vb::Control& MnuVFicha = MakeMenu("MnuVFicha", "Valor da Ficha", MnuConfiguração);
  vb::Control& MnuNome = MakeMenu("MnuNome", "Meu Nome", MnuConfiguração);
  vb::Control& MnuFundos = MakeMenu("MnuFundos", "Mudar Fundo das Cartas", MnuConfiguração);
  vb::Control& L2 = MakeMenu("L2", "-", MnuPopup);
  vb::Control& MnuLimite = MakeMenu("MnuLimite", "Limite na Apertura", MnuPopup);
  vb::Control& MnuFullxCor = MakeMenu("MnuFullxCor", "Full Mata Côr", MnuPopup);
  vb::Control& MnuTrioXEscada = MakeMenu("MnuTrioXEscada", "Trio Mata Escada", MnuPopup);
  vb::Control& L3 = MakeMenu("L3", "-", MnuPopup);
  vb::Control& MnuMusica = MakeMenu("MnuMusica", "Musica", MnuPopup);
  vb::Control& MnuEfeitos = MakeMenu("MnuEfeitos", "Efeitos Sonoros", MnuPopup);
  vb::Control& MnuTrapassa = MakeMenu("MnuTrapassa", "Trapassa", MnuPopup);
  vb::Control& MnuVerBaralho = MakeMenu("MnuVerBaralho", "Ver o Baralho", MnuPopup);  // hidden
  vb::Control& MnuVerCartas = MakeMenu("MnuVerCartas", "Ver as Cartas", MnuPopup);    // hidden
  vb::Control& L4 = MakeMenu("L4", "-", MnuPopup);
  vb::Control& MnuAbout = MakeMenu("MnuAbout", "Creditos", MnuPopup);
  vb::Control& L5 = MakeMenu("L5", "-", MnuPopup);
  vb::Control& MnuSair = MakeMenu("MnuSair", "Sair", MnuPopup);
};

// The table, created on first use and registered with the form engine as the main form.
FrmPrincipal& Frm_Principal();

// Every form of the game destroyed, to be created afresh on next use (tests start from here).
// A module that owns another form adds its own destroyer once, when it first creates the form.
void DestruirFormularios();
void RegistrarDestruicao(void (*destruir)());

// A form of the game other than the table, created on first use, registered with the form engine
// and destroyed with the others.
template <class F>
F& FormularioDoJogo() {
  static std::unique_ptr<F> form;
  if (!form) {
    form = std::make_unique<F>();
    vb::Engine::Get().Register(*form);
    RegistrarDestruicao([] { form.reset(); });
  }
  return *form;
}
