#include "evaluation/analisis.h"

#include <array>

#include "core/game_state.h"
#include "platform/runtime.h"

namespace {

const Hand& Cartas(bool Lado) {
  return Lado ? CartasPoker : CartasPlayer;
}

// Mid(text, start, count) with a 1-based start, as the runtime cuts a text.
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
  if (start > text.size()) return {};
  return text.substr(start - 1, count);
}

// A field of the value string or the hand code, read as a number and kept in 16 bits.
int Numero(std::string_view field) {
  return vb::CInt(vb::Val(field));
}

// A whole number with at least two digits, as Format(v, "00") writes it.
// Texts here are built by appending only: GCC 12 at -O3 warns falsely (-Wrestrict) inside
// std::string when a text is put in front of a temporary one.
std::string DoisDigitos(int v) {
  const std::string digits = vb::LongText(v < 0 ? -std::int64_t{v} : v);
  std::string text = v < 0 ? "-" : "";
  if (digits.size() < 2) text += '0';
  text += digits;
  return text;
}

// A hand code: its class and one or two values.
std::string Codigo(const char* classe, int valor1, int valor2 = -1) {
  std::string codigo = classe;
  codigo += DoisDigitos(valor1);
  if (valor2 >= 0) codigo += DoisDigitos(valor2);
  return codigo;
}

// The two digits of a rank character: Ace 14 down to Ten (D) 10; any other character is a zero
// followed by itself, which makes the digits 2 to 9 read as their own values.
std::string DigitosDoValor(std::string_view rank) {
  static constexpr std::string_view kFiguras = "AKQJD";
  const std::size_t figura = rank.empty() ? std::string_view::npos : kFiguras.find(rank[0]);
  if (figura != std::string_view::npos) return std::to_string(14 - static_cast<int>(figura));
  std::string digits = "0";
  digits += rank;
  return digits;
}

// MaisBaixa, the lowest card of the ace-low straight, by deck size. The second row is 46 and not
// 48, so a 48-card deck finds no row, reads 0, and has no ace-low straight at all. With 20 cards
// the value is 13 and the ace-low test coincides with the ace-high one, which comes first.
int MaisBaixa(int nro_cartas) {
  struct Linha {
    int nro_cartas, mais_baixa;
  };
  static constexpr Linha kLinhas[] = {{52, 5},  {46, 6},  {44, 7},  {40, 8}, {36, 9},
                                      {32, 10}, {28, 11}, {24, 12}, {20, 13}};
  for (const Linha& l : kLinhas) {
    if (l.nro_cartas == nro_cartas) return l.mais_baixa;
  }
  return 0;
}

}  // namespace

std::string ValoresDaMao(bool Lado) {
  std::string valores;
  for (int i = 1; i <= 5; ++i) {
    const std::string& carta = Cartas(Lado)[i];
    // No card gives only the leading zero of an unknown rank.
    valores += DigitosDoValor(carta.substr(0, 1));
    if (!carta.empty()) valores += carta.back();
  }
  return valores;
}

std::string JogoDaMao(bool Lado) {
  const std::string valores = ValoresDaMao(Lado);
  // Each card is a group of three characters: its value in the first two, its suit last.
  int valor[6] = {};
  std::string_view naipe[6];
  for (int i = 1; i <= 5; ++i) {
    const std::string_view carta = Mid(valores, 3 * i - 2, 3);
    valor[i] = Numero(carta.substr(0, 2));
    naipe[i] = carta.empty() ? carta : carta.substr(carta.size() - 1);
  }

  // The cards from the first on that share its suit.
  int naipes_iguais = 1;
  while (naipes_iguais < 5 && naipe[naipes_iguais + 1] == naipe[1]) ++naipes_iguais;

  // The run from the first card on, each one below the last. After an Ace the run goes on from
  // the King, or from the top of the deck's ace-low run; an Ace followed by neither stays at 1.
  const int mais_baixa = MaisBaixa(NroCartas);
  int esperado = valor[1] != 14 ? valor[1] - 1 : valor[2] == 13 ? 13 : mais_baixa;
  int seq_iguais = 1;
  while (seq_iguais < 5 && valor[seq_iguais + 1] == esperado) ++seq_iguais, --esperado;

  if (seq_iguais == 5 && naipes_iguais == 5) return Codigo("ER", valor[1]);
  if (seq_iguais == 5) return Codigo("ES", valor[1]);
  if (naipes_iguais == 5) return Codigo("CO", valor[1]);

  std::array<int, 15> conta_valor{};
  for (int i = 1; i <= 5; ++i) {
    if (valor[i] < 0 || valor[i] > 14) vb::Raise(vb::err::kSubscript);
    ++conta_valor[valor[i]];
  }
  bool quadra = false, trinca = false;
  int valor_quadra = 0, valor_trinca = 0, pares = 0, valor_par1 = 0, valor_par2 = 0;
  for (int v = 1; v <= 14; ++v) {
    if (conta_valor[v] == 4) {
      quadra = true;
      valor_quadra = v;
      break;
    }
    if (conta_valor[v] == 3) {
      trinca = true;
      valor_trinca = v;
    } else if (conta_valor[v] == 2) {
      ++pares;
      (pares == 1 ? valor_par1 : valor_par2) = v;
    }
  }
  if (quadra) return Codigo("PO", valor_quadra);
  if (trinca && pares == 1) return Codigo("FU", valor_trinca);
  if (trinca) return Codigo("PI", valor_trinca);
  if (pares == 2) return Codigo("P2", valor_par2, valor_par1);
  if (pares == 1) return Codigo("P1", valor_par1);
  return Codigo("NN", valor[1]);
}

std::int32_t PontosDoJogo(std::string_view Jogo, std::string_view Valores) {
  // The base of the class, three digits. With the start rules (False, True) a flush beats a full
  // house and three of a kind beats a straight; each rule only swaps two bases. Two pairs carry
  // the sum of both pairs in theirs, so they are ranked by that sum first; one pair carries the
  // pair.
  const std::string_view classe = Jogo.substr(0, 2);
  std::string base = "000";
  if (classe == "ER") {
    base = "800";
  } else if (classe == "PO") {
    base = "700";
  } else if (classe == "CO") {
    base = FullMataCor ? "500" : "600";
  } else if (classe == "FU") {
    base = FullMataCor ? "600" : "500";
  } else if (classe == "PI") {
    base = TrioMataEscada ? "400" : "300";
  } else if (classe == "ES") {
    base = TrioMataEscada ? "300" : "400";
  } else if (classe == "P2") {
    base = Codigo("2", Numero(Mid(Jogo, 3, 2)) + Numero(Mid(Jogo, 5, 2)));
  } else if (classe == "P1") {
    base = Codigo("1", Numero(Mid(Jogo, 3, 2)));
  }

  // The sum of the five card values.
  int soma = 0;
  for (std::size_t p = 1; p <= 13; p += 3) soma += Numero(Mid(Valores, p, 2));

  // The score is the base, the values of the code and the sum written side by side, read as a
  // number.
  std::string texto = base;
  texto += Mid(Jogo, 3, 2);
  texto += vb::LongText(soma);
  return vb::CLng(vb::Val(texto));
}

void AnalisarJogo(bool Lado) {
  (Lado ? ValoresPoker : ValoresPlayer) = ValoresDaMao(Lado);
  // JogoTemp is a six-character text: a shorter code is filled with blanks on the right.
  JogoTemp = JogoDaMao(Lado);
  JogoTemp.resize(6, ' ');
  (Lado ? JogoPoker : JogoPlayer) = JogoTemp.substr(0, 2);
  // The player's score, too, is built from the opponent's value string.
  (Lado ? PontosPoker : PontosPlayer) = PontosDoJogo(JogoTemp, ValoresPoker);
}
