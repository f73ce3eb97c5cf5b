#include "core/game_state.h"
#include "core/start.h"
#include "table/frm_principal.h"

// The settings at the start of the program. (A new game sets its own, which differ.)
void ValoresIniciais() {
  auto& f = Frm_Principal();
  Iniciado = false;
  NroCartas = 52;
  NroFichas = 990;
  MeuNome = "Challenger";
  MaxTroca = 4;
  Dorso = 1;
  ValorFicha = 5.0f;
  FullMataCor = false;
  f.MnuFullxCor.Checked = FullMataCor;
  TrioMataEscada = true;
  f.MnuTrioXEscada.Checked = TrioMataEscada;
  LimiteAbertura = true;
  LimiteFichas = NroFichas > LimiteFichas ? 150 : static_cast<int>(NroFichas);
  f.MnuLimite.Checked = LimiteAbertura;
  f.MnuTrapassa.Visible = true;
  f.MnuTrapassa.Checked = false;
  VerBaralho = false;
  VerCartas = false;
  f.MnuVerBaralho.Checked = VerBaralho;
  f.MnuVerCartas.Checked = VerCartas;
  MusicaOn = false;
  Trilha = 0;
  f.MnuMusica.Checked = MusicaOn;
  EfeitosOn = false;
  f.MnuEfeitos.Checked = EfeitosOn;
  TocandoEfeito = 0;
  if (g_ajustes_iniciais) g_ajustes_iniciais();
}
