// The showdown: both hands scored and named, her cards shown if she is willing, the table to the
// winner or left where it is after a tie. It is also the only place where the game ends by
// itself.
#include "betting/betting.h"
#include "chips/chips.h"
#include "core/game_state.h"
#include "core/hand_cycle.h"
#include "evaluation/analisis.h"
#include "opponent/leyendas.h"
#include "platform/engine.h"
#include "platform/rnd.h"
#include "platform/runtime.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"

namespace {

const char* NomeDoJogo(const std::string& jogo) {
  static constexpr struct {
    const char* code;
    const char* name;
  } kNomes[] = {{"ER", "Escada REAL"}, {"PO", "POKER"},  {"CO", "Côr"},
                {"FU", "FULL"},        {"ES", "Escada"}, {"PI", "TRIO"},
                {"P2", "Par Duplo"},   {"P1", "Par"},    {"NN", "Nada"}};
  for (const auto& n : kNomes)
    if (jogo == n.code) return n.name;
  return "";
}

void MostrarCartasDela() {
  auto& f = Frm_Principal();
  for (int i = 1; i <= 5; ++i) {
    f.ToolbarPoker.Button(2 * i).SetImage(CartasPoker[i]);
    if (EfeitosOn) Musicas("EFEITOS", "CARTASHOW", "");
  }
}

std::string Sufixo() {
  if (JogoPlayer == JogoPoker) return JogoPoker == "NN" ? " valor MAIOR" : " MAIOR";
  return "";
}

}  // namespace

void CmdConfrontar_Click() {
  auto& f = Frm_Principal();
  f.FraConfrontarJogos.Visible = false;
  f.FraConfrontarJogos.Enabled = false;
  ConfrontarJogos();
}

void ConfrontarJogos() {
  auto& f = Frm_Principal();
  if (Fase != 40) return;
  f.Timer1.Enabled = false;
  AnalisarJogo(true);
  AnalisarJogo(false);

  vb::Control& dela = f.LabelPokerCaption(1);
  vb::Control& dele = f.LabelPlayerCaption(1);
  const char* melodia = "GANHEI";
  const char* mensagem[3];
  // The table, taken before it is cleared, as a 16-bit number.
  auto mesa = [] {
    return static_cast<int>(vb::Integer(std::int64_t{MesaPote} + MesaApostas + MesaPingo));
  };

  if (PontosPoker > PontosPlayer) {
    JogoEmpatado = false;
    Leyenda(false, "ELEPERDEU", 0);
    Leyenda(true, "EUGANHEI", mesa());
    dela.Caption = std::string(NomeDoJogo(JogoPoker)) + Sufixo();
    dele.Caption = NomeDoJogo(JogoPlayer);
    MostrarCartasDela();
    MesaApostas = 0;
    MesaPote = 0;
    MesaPingo = 0;
    MontarFichas(true, true);
    mensagem[0] = "Eu te Ganhei...Siiiiim!";
    mensagem[1] = "Que Peninha, Meu Garotão...!";
    mensagem[2] = "Outra Vez ?";
  } else if (PontosPoker < PontosPlayer) {
    JogoEmpatado = false;
    Leyenda(false, "ELEGANHOU", mesa());
    Leyenda(true, "EUPERDI", 0);
    dela.Caption = NomeDoJogo(JogoPoker);
    dele.Caption = std::string(NomeDoJogo(JogoPlayer)) + Sufixo();
    // Now and then she keeps a losing hand of nothing to herself.
    if (JogoPoker == "NN") {
      vb::Randomize(Semente);
      const int x = vb::DrawInt(9);
      if (x == 1 || x == 3 || x == 5 || x == 7 || x == 9) MaoPlayer = false;
    }
    if (MaoPlayer) MostrarCartasDela();
    MesaApostas = 0;
    MesaPote = 0;
    MesaPingo = 0;
    MontarFichas(false, true);
    mensagem[0] = "Parabéns, Você Ganhou...";
    mensagem[1] = "Até que chegou finalmente tua vez de ganhar!";
    mensagem[2] = "Continuamos ?";
  } else {
    JogoEmpatado = true;
    Leyenda(false, "JOGOEMPATADO", 0);
    Leyenda(true, "JOGOEMPATADO", 0);
    dela.Caption = std::string(NomeDoJogo(JogoPoker)) + " IGUAIS";
    dele.Caption = std::string(NomeDoJogo(JogoPlayer)) + " IGUAIS";
    MostrarCartasDela();
    melodia = "PASSOU";
    mensagem[0] = "Casquinhas!, Fico Tudo na MESA, eueeh!";
    mensagem[1] = "Na Proxima Mão, Quem vai levar esse bolão!";
    mensagem[2] = "Vamos Mais Uma ?";
  }
  if (!JogoEmpatado) AcertarPilhas();

  // The common end.
  f.Timer1.Enabled = false;
  if (EfeitosOn) {
    if (MusicaOn) Musicas("TRILHAS", vb::LongText(Trilha), "CLOSE");
    Musicas("MELODIAS", melodia, "PLAY");
  }
  Esperar(kPausaConfronto);
  f.FraConfrontarJogos.Visible = false;
  f.FraConfrontarJogos.Enabled = false;
  f.FraPedeCartasPlayer.Visible = false;
  f.FraPedeCartasPlayer.Enabled = false;
  f.FraApostaPlayer.Visible = false;
  f.FraApostaPlayer.Enabled = false;
  for (int i = 0; i <= 4; ++i) f.PicCartasPlayer(i).Visible = false;
  for (int i = 0; i <= 3; ++i) f.PicFichasPlayer(i).Enabled = false;
  for (int b = 2; b <= 8; b += 2) f.ToolbarPlayerCoins.Button(b).SetEnabled(false);
  MostrarFim(mensagem[0], mensagem[1], mensagem[2]);
  Fase = 50;
  if (!JogoEmpatado && (FichasPlayer == 0 || FichasPoker == 0)) {
    // The end of the game: the message stays up a while, then the table closes.
    f.FraMaisUma.Visible = false;
    f.FraMaisUma.Enabled = false;
    Esperar(kPausaFimDeJogo);
    vb::Engine::Get().Unload(f);
  }
}
