// A betting round laid out by hand on a started table, and what the round then said and played:
// the stakes and piles of both sides, the chips on the table, the draws of her mind and of her
// lines, every speech as it reached the balloons, every sound command in order.
#pragma once

#include <deque>
#include <initializer_list>
#include <string>
#include <vector>

#include "betting/betting.h"
#include "chips/chips.h"
#include "core/hand_cycle.h"
#include "game_fixture.h"
#include "opponent/leyendas.h"
#include "platform/mci.h"
#include "platform/rnd.h"
#include "support.h"

// The draw that picks the first line of a drawn key.
inline constexpr float kLinha = 0.01f;

// One speech as the balloon showed it, with the table at that moment.
struct Falado {
  bool poker;
  std::string nome, linha1, linha2;
  int pote = 0, apostas = 0, fichas_player = 0;
  bool operator==(const Falado& o) const {
    return poker == o.poker && nome == o.nome && linha1 == o.linha1 && linha2 == o.linha2;
  }
};

inline std::ostream& operator<<(std::ostream& os, const Falado& f) {
  return os << (f.poker ? "ZEVA" : "player") << " [" << f.nome << "|" << f.linha1 << "|" << f.linha2
            << "]";
}

// A speech by its key, as the game says it when the draw of a line falls on the first one.
struct Chave {
  bool poker;
  const char* chave;
  int fichas = 0;
};

// A hand laid out by hand: both sides' levels, chips on the table beyond the levels (carried from
// an earlier hand, or staked at phase 13), the centre pot, the piles (ones, fives, tens, fifties).
struct Lance {
  int fase = 10;
  int abertura_player = 0, aumento_player = 0, total_player = 0;  // the three opening levels
  int abertura_poker = 0, aumento_poker = 0, total_poker = 0;
  int aposta_player = 0, total_aposta_player = 0;  // the two final-round levels
  int aposta_poker = 0, total_aposta_poker = 0;
  int extra_player = 0, extra_poker = 0;  // may be negative: a level that moved no chip
  int pingo = 2;
  bool mao = false;  // MaoPlayer: she holds the hand
  int pilha_player[4] = {10, 10, 10, 10};
  int pilha_poker[4] = {10, 10, 10, 10};
};

// Two five-card hands, each sorted highest first: "KC KD 9P 5T 2C".
inline constexpr const char* kFracaDela = "KC KD 9P 5T 2C";  // a pair of kings
inline constexpr const char* kFracaDele = "AC JD 8P 6T 3C";  // nothing
inline constexpr const char* kFullDele = "QC QD QP 4T 4C";   // a full house

// Sound commands.
inline std::string Efeito(const std::string& k) {
  return "Play MUSICAS\\EFEITOS\\" + k + ".WAV";
}
inline std::string Melodia(const std::string& cmd, const std::string& k) {
  return cmd + " MUSICAS\\MELODIAS\\" + k + ".WAV";
}
inline const std::string kPausa = "Pause MUSICAS\\TRILHAS\\INGAME1.MP3";
inline const std::string kRetoma = "Play MUSICAS\\TRILHAS\\INGAME1.MP3";
inline const std::string kFechaTudo = "Close All";
inline const std::string kLaluz = Melodia("Play", "LALUZ");

using Sons = std::vector<std::string>;
inline Sons Junta(std::initializer_list<Sons> partes) {
  Sons s;
  for (const Sons& p : partes) s.insert(s.end(), p.begin(), p.end());
  return s;
}
inline Sons Vezes(int n, const std::string& som) {
  return Sons(static_cast<std::size_t>(n), som);
}
// The clicks of a stake laid by MoverFichas from a full stack: lowest chips first.
inline Sons Cliques(int n) {
  const Contagem c = Repartir(n);
  return Junta({Vezes(c[0], Efeito("FICHAS_1")), Vezes(c[1], Efeito("FICHAS_5")),
                Vezes(c[2], Efeito("FICHAS_10")), Vezes(c[3], Efeito("FICHAS_50"))});
}
// MontarFichas sweeping chips into a stack.
inline Sons Chocalho() {
  return Vezes(4, Efeito("FICHAS"));
}

class BettingTest : public GameTest {
 protected:
  void SetUp() override {
    GameTest::SetUp();
    Corte() = {};
    Roteiro().clear();
    Falas().clear();
  }
  void Watch() override {
    g_depois_da_fala = Ouvir;
    FaseVar::Observe(FaseMudou);
  }

  // What the round leaves before it hands the table to the exchange: the first move of the phase
  // to 20 cuts the records there, since her own exchange speaks and plays after it.
  struct Marca {
    bool feito = false;
    std::size_t sons = 0, falas = 0, roteiro = 0;
    std::string jogo_poker;
    float semente = 0;
  };
  static Marca& Corte() {
    static Marca m;
    return m;
  }
  // Draws to be scripted when the phase next becomes 10 (a hand dealt by NovaMao).
  static std::deque<float>& Roteiro() {
    static std::deque<float> r;
    return r;
  }
  static std::vector<Falado>& Falas() {
    static std::vector<Falado> f;
    return f;
  }
  static void FaseMudou(const std::string&, const std::string& to) {
    if (to == "10" && !Roteiro().empty()) {
      vb::ScriptRnd(Roteiro());
      Roteiro().clear();
    }
    if (to == "20" && !Corte().feito) {
      Corte() = {true,   vb::MciSent().size(), Falas().size(), vb::ScriptedRndLeft(), JogoPoker,
                 Semente};
    }
  }
  static void Ouvir(bool lado) {
    auto& f = Frm_Principal();
    vb::ControlArray<>& l = lado ? f.LabelPokerCaption : f.LabelPlayerCaption;
    Falas().push_back({lado, l(0).Caption.get(), l(1).Caption.get(), l(2).Caption.get(), MesaPote,
                       MesaApostas, FichasPlayer});
  }

  // The records up to the cut, if one was made.
  Sons SonsAteCorte() const {
    Sons s = vb::MciSent();
    if (Corte().feito) s.resize(Corte().sons);
    return s;
  }
  std::vector<Falado> FalasAteCorte() const {
    std::vector<Falado> s = Falas();
    if (Corte().feito) s.resize(Corte().falas);
    return s;
  }
  // The speeches of these keys, the first line of each drawn key. Call after the play: it uses
  // the scripted generator.
  static std::vector<Falado> Ditos(const std::vector<Chave>& chaves) {
    std::vector<Falado> out;
    for (const Chave& c : chaves) {
      vb::ScriptRnd({kLinha});
      const Fala f = FalaDe(c.poker, c.chave, c.fichas);
      out.push_back({c.poker, f.Nome, f.Linha1, f.Linha2});
    }
    vb::ScriptRnd({});
    return out;
  }
  // Whether a speech is one of the lines of a key, whichever line the draw fell on.
  static bool DaChave(const Falado& f, const Chave& c) {
    bool achou = false;
    for (int i = 0; i < 20 && !achou; ++i) {
      vb::ScriptRnd({(i + 0.5f) / 20});
      const Fala d = FalaDe(c.poker, c.chave, c.fichas);
      achou = f == Falado{c.poker, d.Nome, d.Linha1, d.Linha2};
    }
    vb::ScriptRnd({});
    return achou;
  }
  std::string Linha2(bool poker) { return Caption(Balao(poker)(2)); }
  vb::ControlArray<>& Balao(bool poker) {
    return poker ? F().LabelPokerCaption : F().LabelPlayerCaption;
  }

  // The piles of a side, and its total as the stack says.
  void Pilha(bool poker, const int (&n)[4]) {
    vb::Control& bar = poker ? F().ToolbarPokerCoins : F().ToolbarPlayerCoins;
    int total = 0;
    for (int i = 0; i < 4; ++i) {
      const Denominacao& d = kDenominacoes[i];
      bar.Button(d.botao).SetImage(ChavePilha(d, n[i]));
      bar.Button(d.botao).SetEnabled(n[i] > 0);
      if (!poker) F().PicFichasPlayer(d.pic).Enabled = n[i] > 0;
      total += n[i] * d.valor;
    }
    (poker ? FichasPoker : FichasPlayer) = total;
  }
  int NaPilha(bool poker) {
    vb::Control& bar = poker ? F().ToolbarPokerCoins : F().ToolbarPlayerCoins;
    int total = 0;
    for (const Denominacao& d : kDenominacoes)
      total += ContagemPilha(bar.Button(d.botao)) * d.valor;
    return total;
  }
  int Contagem(bool poker, const Denominacao& d) {
    vb::Control& bar = poker ? F().ToolbarPokerCoins : F().ToolbarPlayerCoins;
    return ContagemPilha(bar.Button(d.botao));
  }
  // A side's table chips as the sweep counts them: up to the first hidden picture.
  vb::ControlArray<>& Monte(bool poker) {
    return poker ? F().PicturePokerCoin : F().PicturePlayerCoin;
  }
  int NaMesa(bool poker) {
    int total = 0;
    for (int i = 0; i < Monte(poker).Count() && Monte(poker)(i).Visible; ++i)
      total += std::stoi(Monte(poker)(i).Tag.get());
    return total;
  }
  // Lays `valor` in table chips for a side, from place 0, lowest chips first.
  void Deitar(bool poker, int valor) {
    vb::ControlArray<>& m = Monte(poker);
    for (int i = 0; i < m.Count(); ++i) m(i).Visible = false;
    int at = 0;
    for (int i = 3; i >= 0; --i) {
      const Denominacao& d = kDenominacoes[i];
      for (; valor >= d.valor; valor -= d.valor) {
        m(at).Picture = F().ImageListExtras.PictureOf(d.ficha);
        m(at).Tag = std::to_string(d.valor);
        m(at).Visible = true;
        ++at;
      }
    }
  }

  void Maos(const std::string& dela, const std::string& dele) {
    for (int i = 1; i <= 5; ++i) {
      CartasPoker[i] = dela.substr(3 * (i - 1), 2);
      CartasPlayer[i] = dele.substr(3 * (i - 1), 2);
    }
  }

  // A started table (the first hand dealt and at the player's turn), then the hand as told.
  void Montar(const Lance& l, const char* dela = kFracaDela, const char* dele = kFracaDele) {
    if (!F().Loaded()) IniciarJogo();
    Fase = l.fase;
    AberturaPlayer = l.abertura_player, AumentoAberturaPlayer = l.aumento_player,
    TotalAberturaPlayer = l.total_player;
    AberturaPoker = l.abertura_poker, AumentoAberturaPoker = l.aumento_poker,
    TotalAberturaPoker = l.total_poker;
    ApostaPlayer = l.aposta_player, TotalApostaPlayer = l.total_aposta_player;
    ApostaPoker = l.aposta_poker, TotalApostaPoker = l.total_aposta_poker;
    MesaPote = l.abertura_player + l.aumento_player + l.total_player + l.aposta_player +
               l.total_aposta_player + l.extra_player;
    MesaApostas = l.abertura_poker + l.aumento_poker + l.total_poker + l.aposta_poker +
                  l.total_aposta_poker + l.extra_poker;
    MesaPingo = l.pingo;
    Deitar(false, MesaPote);
    Deitar(true, MesaApostas);
    FichasNaMesa();
    Pilha(false, l.pilha_player);
    Pilha(true, l.pilha_poker);
    MaoPlayer = l.mao;
    Maos(dela, dele);
    AtualizarLabels();
  }

  // The records from here.
  static void Gravar() {
    vb::ClearMciSent();
    Falas().clear();
    Corte() = {};
  }
  // Effects and music on, the first track playing, the records from here.
  static void ComSom() {
    EfeitosOn = true;
    MusicaOn = true;
    Trilha = 1;
    MusicTime = 0;
    Gravar();
  }
};
