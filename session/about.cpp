#include "session/about.h"

#include <string>

#include "core/game_state.h"
#include "platform/app_path.h"
#include "sound/musicas.h"
#include "table/frm_principal.h"
#include "table/image_stores.h"

namespace {
constexpr int kTicksDoTema = 3100;  // about 310 seconds of the credits tune
constexpr const char* kVersao = "Versão";
}  // namespace

frmAbout::frmAbout() : vb::Form("frmAbout") {
  Caption = "  Creditos desta versão";
  Move(0, 0, 6600, 3300);
  Frame1.Move(2160, 120, 4200, 2580);
  LblTitle.Move(120, 180, 3960, 435);
  LblTitle.font.size = 16;
  LblTitle.font.bold = true;
  LblTitle.Caption = "POKER (ZEVA)";
  LblDescription.Move(120, 720, 3960, 480);
  LblDescription.Caption = "Tradicional Jogo de Cassino a Cinco Cartas";
  lblVersion.Move(120, 1320, 3960, 285);
  LblAuthor.Move(120, 1800, 3960, 600);
  LblAuthor.Caption = "Feito pela equipe do PokerZEVA: regras, desenhos e sons nossos.";
  Frame2.Move(120, 120, 1920, 2580);
  Picture1.Move(120, 180, 1680, 2220);
  Picture1.Picture = kPictureCreditos;
  Picture1.accessible.name = "ZEVA diante de três cartas viradas";
  Timer1.timer_order = 4;
  Load = [this] { Form_Load(); };
  Timer1.TimerEvent = [this] { Timer1_Timer(); };
  Unload = [this](int&) { Form_Unload(); };
}

void frmAbout::Form_Load() {
  if (EfeitosOn || MusicaOn) Musicas("TRILHAS", "All", "CLOSE");
  if (EfeitosOn && MusicaOn) Musicas("MELODIAS", "DALICENCA", "PLAY");
  Contador = 0;
  Timer1.Interval = 100;
  Timer1.Enabled = true;
  Caption = "  Creditos desta versão";
  // The form opens afresh each time: its version line starts from the design caption.
  const vb::Version v = vb::AppVersion();
  lblVersion.Caption = std::string(kVersao) + " " + std::to_string(v.Major) + "." +
                       std::to_string(v.Minor) + "." + std::to_string(v.Revision);
}

void frmAbout::Timer1_Timer() {
  ++Contador;
  if (Contador > kTicksDoTema) {
    if (EfeitosOn && MusicaOn) Musicas("MELODIAS", "DALICENCA", "PLAY");
    Contador = 0;
  }
}

void frmAbout::Form_Unload() {
  Timer1.Enabled = false;
  if (EfeitosOn && MusicaOn) Musicas("MELODIAS", "DALICENCA", "CLOSE");
}

frmAbout& Frm_About() {
  return FormularioDoJogo<frmAbout>();
}
