#include "opponent/manoanalisis.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "core/game_state.h"
#include "platform/runtime.h"

namespace {

constexpr std::string_view kNaipes = "CDPT";
constexpr int kAs = 14;

// The floor of the straights in the deck in use: TopoAs is the high card of the lowest straight
// with the ace at the bottom, TopoBaixo the high card of the lowest straight without it. A
// stripped deck loses its lowest ranks, so its straights stop higher.
struct PisoDeEscada {
  int TopoAs;
  int TopoBaixo;
};

PisoDeEscada PisoDoBaralho() {
  switch (NroCartas) {
    case 52:
      return {5, 6};
    case 48:
      return {6, 7};
    case 44:
      return {7, 8};
    case 40:
      return {8, 9};
    case 36:
      return {9, 10};
    case 32:
      return {10, 11};
    case 28:
      return {11, 12};
    case 24:
      return {12, 13};
    case 20:
      return {13, 14};
    default:
      return {0, 0};  // no deck of that size: no ace-low straight, no floor
  }
}

// "AC" -> "14C", "DD" -> "10D", "7P" -> "07P".
std::string FormatoDeTrabalho(const std::string& codigo) {
  if (codigo.size() < 2) vb::Raise(vb::err::kInvalidCall);
  std::string carta;
  switch (codigo[0]) {
    case 'A':
      carta = "14";
      break;
    case 'K':
      carta = "13";
      break;
    case 'Q':
      carta = "12";
      break;
    case 'J':
      carta = "11";
      break;
    case 'D':
      carta = "10";
      break;
    default:
      carta = std::string("0") + codigo[0];
      break;
  }
  return carta + codigo[1];
}

bool ValorExiste(int valor) {
  return valor >= 2 && valor <= kAs;
}

std::string Carta(int valor, char naipe) {
  std::string carta(3, ' ');
  carta[0] = static_cast<char>('0' + valor / 10);
  carta[1] = static_cast<char>('0' + valor % 10);
  carta[2] = naipe;
  return carta;
}

int CartasNoMonte(const std::string& pool) {
  return static_cast<int>(pool.size() / 3);
}

std::string CartaNoMonte(const std::string& pool, int lugar) {
  return pool.substr(3 * (lugar - 1), 3);
}

int ValorNoMonte(const std::string& pool, int lugar) {
  const std::size_t p = 3 * (lugar - 1);
  return (pool[p] - '0') * 10 + (pool[p + 1] - '0');
}

char NaipeNoMonte(const std::string& pool, int lugar) {
  return pool[3 * (lugar - 1) + 2];
}

// The place (1 = first card of the hand, 6 = first deck card) of a card in the pool, or 0.
int LugarNoMonte(const std::string& pool, std::string_view carta) {
  for (int lugar = 1; lugar <= CartasNoMonte(pool); ++lugar) {
    if (std::string_view(pool).substr(3 * (lugar - 1), 3) == carta) return lugar;
  }
  return 0;
}

// What the search looks at: the pool, how many cards of each rank it holds, and the floor.
struct Busca {
  std::string Monte;
  std::array<std::uint8_t, 15> ContaValor{};
  PisoDeEscada Piso{};
};

using Achado = std::optional<std::string>;

bool Tem(const Busca& b, const std::string& carta) {
  return LugarNoMonte(b.Monte, carta) != 0;
}

Achado SePassa(const Busca& b, const std::string& jogo) {
  if (ValorDaCarta(jogo, b.Monte)) return jogo;
  return std::nullopt;
}

// Every card of one rank, in pool order: the hand's first, then the deck's in deck order.
std::vector<std::string> CartasDoValor(const Busca& b, int valor) {
  std::vector<std::string> cartas;
  for (int lugar = 1; lugar <= CartasNoMonte(b.Monte); ++lugar) {
    if (ValorNoMonte(b.Monte, lugar) == valor) cartas.push_back(CartaNoMonte(b.Monte, lugar));
  }
  return cartas;
}

// Every card of one rank, in suit order: a pair, trips or four taken whole.
std::string Grupo(const Busca& b, int valor) {
  std::string jogo;
  for (char naipe : kNaipes) {
    if (Tem(b, Carta(valor, naipe))) jogo += Carta(valor, naipe);
  }
  return jogo;
}

// The highest rank held exactly three times, or 0.
int MaiorTrinca(const Busca& b) {
  for (int valor = kAs; valor >= 2; --valor) {
    if (b.ContaValor[valor] == 3) return valor;
  }
  return 0;
}

// One card of each rank, in the order given (the top rank first). Every choice is tried, the
// first rank's choice changing slowest; the first choice that can be drawn is the one.
Achado EscolherSequencia(const Busca& b, const std::vector<std::vector<std::string>>& opcoes,
                         std::size_t indice, std::string& jogo) {
  if (indice == opcoes.size()) return SePassa(b, jogo);
  for (const std::string& carta : opcoes[indice]) {
    jogo += carta;
    if (Achado achado = EscolherSequencia(b, opcoes, indice + 1, jogo)) return achado;
    jogo.resize(jogo.size() - 3);
  }
  return std::nullopt;
}

Achado SequenciaDeValores(const Busca& b, const std::vector<int>& valores) {
  std::vector<std::vector<std::string>> opcoes;
  for (int valor : valores) {
    if (!ValorExiste(valor)) return std::nullopt;
    opcoes.push_back(CartasDoValor(b, valor));
    if (opcoes.back().empty()) return std::nullopt;
  }
  std::string jogo;
  return EscolherSequencia(b, opcoes, 0, jogo);
}

// The ranks of a straight from its high card down, and those of the ace-low straight of the deck:
// its four low ranks from TopoAs down to the floor, the ace below them.
std::vector<int> ValoresDaEscada(int alta) {
  return {alta, alta - 1, alta - 2, alta - 3, alta - 4};
}

std::vector<int> ValoresDaEscadaBaixa(const Busca& b) {
  const int topo = b.Piso.TopoAs;
  return {topo, topo - 1, topo - 2, topo - 3, kAs};
}

Achado EscadaDeNaipe(const Busca& b, const std::vector<int>& valores, char naipe) {
  std::string jogo;
  for (int valor : valores) {
    if (!ValorExiste(valor) || !Tem(b, Carta(valor, naipe))) return std::nullopt;
    jogo += Carta(valor, naipe);
  }
  return SePassa(b, jogo);
}

// Straight flush: every high card from the ace down to the floor, every suit; then the ace-low
// straight flush, one a suit.
Achado ProcurarER(const Busca& b) {
  for (int alta = kAs; alta >= b.Piso.TopoBaixo; --alta) {
    for (char naipe : kNaipes) {
      if (Achado achado = EscadaDeNaipe(b, ValoresDaEscada(alta), naipe)) return achado;
    }
  }
  for (char naipe : kNaipes) {
    if (Achado achado = EscadaDeNaipe(b, ValoresDaEscadaBaixa(b), naipe)) return achado;
  }
  return std::nullopt;
}

// Four of a kind: every rank held four times, from the top.
Achado ProcurarPO(const Busca& b) {
  for (int valor = kAs; valor >= 2; --valor) {
    if (b.ContaValor[valor] != 4) continue;
    std::string jogo;
    for (char naipe : kNaipes) jogo += Carta(valor, naipe);
    if (Achado achado = SePassa(b, jogo)) return achado;
  }
  return std::nullopt;
}

// Flush: the suits in order C, D, P, T; of a suit with five cards or more, its five highest.
Achado ProcurarCO(const Busca& b) {
  for (char naipe : kNaipes) {
    std::vector<std::string> cartas;
    for (int lugar = 1; lugar <= CartasNoMonte(b.Monte); ++lugar) {
      if (NaipeNoMonte(b.Monte, lugar) == naipe) cartas.push_back(CartaNoMonte(b.Monte, lugar));
    }
    if (cartas.size() < 5) continue;
    std::stable_sort(cartas.begin(), cartas.end(), [](const std::string& x, const std::string& y) {
      return x.compare(0, 2, y, 0, 2) > 0;
    });
    std::string jogo;
    for (int i = 0; i < 5; ++i) jogo += cartas[i];
    if (Achado achado = SePassa(b, jogo)) return achado;
  }
  return std::nullopt;
}

// Full house: the trips of the highest rank held three times, with a pair of another rank held
// twice or more, its rank from the top down. Of a rank held more than twice every two cards are
// tried, in pool order.
Achado ProcurarFU(const Busca& b) {
  const int trinca = MaiorTrinca(b);
  if (trinca == 0) return std::nullopt;
  const std::string tres = Grupo(b, trinca);
  for (int par = kAs; par >= 2; --par) {
    if (par == trinca || b.ContaValor[par] < 2) continue;
    const std::vector<std::string> cartas = CartasDoValor(b, par);
    for (std::size_t i = 0; i < cartas.size(); ++i) {
      for (std::size_t j = i + 1; j < cartas.size(); ++j) {
        if (Achado achado = SePassa(b, tres + cartas[i] + cartas[j])) return achado;
      }
    }
  }
  return std::nullopt;
}

// Straight: every high card from the ace down to the floor, then the ace-low straight.
Achado ProcurarES(const Busca& b) {
  for (int alta = kAs; alta >= b.Piso.TopoBaixo; --alta) {
    if (Achado achado = SequenciaDeValores(b, ValoresDaEscada(alta))) return achado;
  }
  return SequenciaDeValores(b, ValoresDaEscadaBaixa(b));
}

// Three of a kind: only the highest rank held three times.
Achado ProcurarPI(const Busca& b) {
  const int trinca = MaiorTrinca(b);
  if (trinca == 0) return std::nullopt;
  return SePassa(b, Grupo(b, trinca));
}

// Two pairs: ranks held exactly twice, the higher from the top, the lower from just below it.
Achado ProcurarP2(const Busca& b) {
  for (int alto = kAs; alto >= 2; --alto) {
    if (b.ContaValor[alto] != 2) continue;
    for (int baixo = alto - 1; baixo >= 2; --baixo) {
      if (b.ContaValor[baixo] != 2) continue;
      if (Achado achado = SePassa(b, Grupo(b, alto) + Grupo(b, baixo))) return achado;
    }
  }
  return std::nullopt;
}

// One pair: every rank held exactly twice, from the top.
Achado ProcurarP1(const Busca& b) {
  for (int valor = kAs; valor >= 2; --valor) {
    if (b.ContaValor[valor] != 2) continue;
    if (Achado achado = SePassa(b, Grupo(b, valor))) return achado;
  }
  return std::nullopt;
}

struct Passo {
  const char* Classe;
  Achado (*Procurar)(const Busca&);
};

}  // namespace

bool ValorDaCarta(const std::string& Jogo, const std::string& Pool) {
  int daMao = 0;
  int doBaralho = 0;
  int maisLonge = 0;  // the furthest deck card needed: 1 for the next card to be dealt
  for (std::size_t p = 0; p + 3 <= Jogo.size(); p += 3) {
    const int lugar = LugarNoMonte(Pool, std::string_view(Jogo).substr(p, 3));
    if (lugar == 0) return false;
    if (lugar >= 6) {
      ++doBaralho;
      maisLonge = std::max(maisLonge, lugar - 5);
    } else {
      ++daMao;
    }
  }
  if (doBaralho == 0) return true;
  if (daMao == 0) return MaxTroca == 5;
  // To reach the j-th next card she throws away at least j cards and keeps at most 5 - j.
  return daMao <= std::max(0, 5 - maisLonge);
}

void AnalisarMao(bool Lado, std::uint8_t& PosicaoBaralho, std::uint8_t& Quantas,
                 const std::string& Texto) {
  Busca b;
  if (!Texto.empty()) {
    b.Monte = Texto;
  } else {
    const Hand& mao = Lado ? CartasPoker : CartasPlayer;
    for (int i = 1; i <= 5; ++i) b.Monte += FormatoDeTrabalho(mao[i]);
    // She looks at the cards she is about to be dealt, in the order they will come.
    for (int i = 1; i <= Quantas; ++i) {
      if (PosicaoBaralho < 1 || PosicaoBaralho > 52) vb::Raise(vb::err::kSubscript);
      b.Monte += FormatoDeTrabalho(Baralho[PosicaoBaralho]);
      ++PosicaoBaralho;
    }
  }
  for (int lugar = 1; lugar <= CartasNoMonte(b.Monte); ++lugar) {
    const int valor = ValorNoMonte(b.Monte, lugar);
    if (valor < 0 || valor > kAs) vb::Raise(vb::err::kSubscript);
    ++b.ContaValor[valor];
  }
  b.Piso = PisoDoBaralho();

  // Best hand first. The house rules order the draw as they order the hands: a full house ahead
  // of a flush when it beats one, three of a kind ahead of a straight when it beats one.
  std::vector<Passo> passos = {{"ER", ProcurarER}, {"PO", ProcurarPO}};
  if (FullMataCor) {
    passos.insert(passos.end(), {{"FU", ProcurarFU}, {"CO", ProcurarCO}});
  } else {
    passos.insert(passos.end(), {{"CO", ProcurarCO}, {"FU", ProcurarFU}});
  }
  if (TrioMataEscada) {
    passos.insert(passos.end(), {{"PI", ProcurarPI}, {"ES", ProcurarES}});
  } else {
    passos.insert(passos.end(), {{"ES", ProcurarES}, {"PI", ProcurarPI}});
  }
  passos.insert(passos.end(), {{"P2", ProcurarP2}, {"P1", ProcurarP1}});

  for (const Passo& passo : passos) {
    if (Achado jogo = passo.Procurar(b)) {
      ListaTroca = passo.Classe + *jogo;
      return;
    }
  }
  // Nothing to draw to: she keeps her highest card.
  ListaTroca = "NN" + b.Monte.substr(0, 3);
}
