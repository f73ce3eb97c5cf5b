// The start of the program: the table is created, its controls are tied to the game's handlers,
// and its initialisation plays the first hand up to the player's turn.
#include "core/start.h"

#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "opponent/leyendas.h"
#include "opponent/troca.h"
#include "platform/engine.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "platform/settings.h"
#include "session/menu.h"
#include "table/cards.h"
#include "table/frm_principal.h"

void (*g_ajustes_iniciais)() = nullptr;
void (*g_depois_da_fala)(bool Lado) = nullptr;

void ResetProcess(std::uint64_t seed) {
  vb::Engine::Get().Reset();
  DestruirFormularios();
  ResetGameState();
  FaseVar::Observe(nullptr);
  g_ajustes_iniciais = nullptr;
  g_depois_da_fala = nullptr;
  g_leyenda_screen = nullptr;
  vb::ScriptRnd({});
  vb::SetRndState(seed);
  vb::InstallSettings(nullptr);
  vb::InstallMciSink(nullptr);
  vb::ClearMciSent();
}

namespace {

// Her words and the table's go into the three caption labels of that side's balloon.
void EscreverFala(bool Lado, const Fala& fala) {
  auto& f = Frm_Principal();
  vb::ControlArray<>& labels = Lado ? f.LabelPokerCaption : f.LabelPlayerCaption;
  labels(0).Caption = fala.Nome;
  labels(1).Caption = fala.Linha1;
  labels(2).Caption = fala.Linha2;
  if (g_depois_da_fala) g_depois_da_fala(Lado);
}

void LigarEventos(FrmPrincipal& f) {
  f.Unload = [](int& cancel) { Form_Unload(cancel); };
  f.TimerEspera.TimerEvent = TimerEspera_Timer;
  f.Timer1.TimerEvent = Timer1_Timer;
  f.TimerKeyPot.TimerEvent = TimerKeyPot_Timer;

  f.CmdPago.Click = CmdPago_Click;
  f.CmdTudo.Click = CmdTudo_Click;
  f.CmdConfrontar.Click = CmdConfrontar_Click;
  f.CmdMaisUma.Click = CmdMaisUma_Click;
  for (int i = 0; i <= 1; ++i) {
    f.CmdDesfazer(i).Click = [i] { CmdDesfazer_Click(i); };
    f.CmdAcabei(i).Click = [i] { CmdAcabei_Click(i); };
    f.CmdAcabei(i).GotFocus = [i] { CmdAcabei_GotFocus(i); };
    f.CmdAcabei(i).LostFocus = [i] { CmdAcabei_LostFocus(i); };
  }
  for (int i = 0; i <= 2; ++i) f.CmdSair(i).Click = [i] { CmdSair_Click(i); };

  f.ToolbarPlayerCoins.ButtonClick = ToolbarPlayerCoins_ButtonClick;
  for (int i = 0; i <= 3; ++i) {
    vb::Control& place = f.PicFichasPlayer(i);
    place.Click = [i] { PicFichasPlayer_Click(i); };
    place.KeyPress = [i](int& key) { PicFichasPlayer_KeyPress(i, key); };
    place.KeyDown = [i](int code, int shift) { PicFichasPlayer_KeyDown(i, code, shift); };
    place.GotFocus = [i] { PicFichasPlayer_GotFocus(i); };
    place.LostFocus = [i] { PicFichasPlayer_LostFocus(i); };
    f.LabelPlayerFichasPOT(i).Click = [i] { LabelPlayerFichasPOT_Click(i); };
  }

  f.MnuNova.Click = MnuNova_Click;
  f.MnuNroCartas.Click = MnuNroCartas_Click;
  f.MnuNroFichas.Click = MnuNroFichas_Click;
  f.MnuTroca.Click = MnuTroca_Click;
  f.MnuVFicha.Click = MnuVFicha_Click;
  f.MnuNome.Click = MnuNome_Click;
  f.MnuFundos.Click = MnuFundos_Click;
  f.MnuTrapassa.Click = MnuTrapassa_Click;
  f.MnuVerBaralho.Click = MnuVerBaralho_Click;
  f.MnuVerCartas.Click = MnuVerCartas_Click;
  f.MnuAbout.Click = MnuAbout_Click;
  f.MnuLimite.Click = MnuLimite_Click;
  f.MnuFullxCor.Click = MnuFullxCor_Click;
  f.MnuTrioXEscada.Click = MnuTrioXEscada_Click;
  f.MnuMusica.Click = MnuMusica_Click;
  f.MnuEfeitos.Click = MnuEfeitos_Click;
  f.MnuSair.Click = MnuSair_Click;

  f.ToolbarPlayer.ButtonClick = [](vb::ToolbarButton& b) { ToolbarPlayer_ButtonClick(b.Index()); };
  for (int i = 0; i <= 4; ++i) {
    vb::Control& card = f.PicCartasPlayer(i);
    card.Click = [i] { PicCartasPlayer_Click(i); };
    card.KeyPress = [i](int& key) { PicCartasPlayer_KeyPress(i, key); };
    card.KeyDown = [i](int code, int shift) { PicCartasPlayer_KeyDown(i, code, shift); };
    card.GotFocus = [i] { PicCartasPlayer_GotFocus(i); };
    card.LostFocus = [i] { PicCartasPlayer_LostFocus(i); };
  }
}

}  // namespace

void IniciarJogo() {
  g_leyenda_screen = EscreverFala;
  FrmPrincipal& f = Frm_Principal();
  LigarEventos(f);
  vb::Engine::Get().Load(f);
  Form_Initialize();
  // Back to the event loop: the focus events the first turn queued run now.
  vb::Engine::Get().RunFocusEvents();
}
