#include "evaluation/analisis.h"

#include <bit>
#include <cstdint>
#include <cstring>

#include "core/game_state.h"
#include "platform/runtime.h"

namespace {

// The two digits of a rank character: Ace 14 down to Ten (D) 10; any other character is a zero
// followed by itself, which makes the digits 2 to 9 read as their own values.
struct RankDigits {
  char text[256][2];
};
constexpr RankDigits MakeRankDigits() {
  RankDigits r{};
  for (int c = 0; c < 256; ++c) r.text[c][0] = '0', r.text[c][1] = static_cast<char>(c);
  const char* figures = "AKQJD";
  for (int k = 0; k < 5; ++k) {
    auto& t = r.text[static_cast<unsigned char>(figures[k])];
    t[0] = '1', t[1] = static_cast<char>('4' - k);
  }
  return r;
}
constexpr RankDigits kRankDigits = MakeRankDigits();

// Writes the value string of a hand into out (room for 15 characters) and returns its length.
// A card is its rank as two digits followed by its suit, the last character of its code.
int ValoresBuf(const Hand& cartas, char* out) {
  int n = 0;
  for (int i = 1; i <= 5; ++i) {
    const std::string& c = cartas[i];
    if (c.empty()) {  // no card: only the leading zero of an unknown rank
      out[n++] = '0';
      continue;
    }
    const char* digits = kRankDigits.text[static_cast<unsigned char>(c[0])];
    out[n] = digits[0], out[n + 1] = digits[1], out[n + 2] = c.back();
    n += 3;
  }
  return n;
}

// Mid(text, start, count) with a 1-based start, as the runtime cuts a text.
std::string_view Mid(std::string_view text, std::size_t start, std::size_t count) {
  if (start > text.size()) return {};
  return text.substr(start - 1, count);
}

// Val of a field of up to two characters, kept in a whole-number variable; two plain digits, the
// only thing the game ever has there, are read directly.
int FieldInt(std::string_view field) {
  if (field.size() == 2) {
    const unsigned d0 = static_cast<unsigned char>(field[0]) - '0';
    const unsigned d1 = static_cast<unsigned char>(field[1]) - '0';
    if (d0 < 10 && d1 < 10) return static_cast<int>(d0 * 10 + d1);
  }
  return vb::CInt(vb::Val(field));
}

// Writes a whole number with at least min_digits digits: 2 as Format(v, "00") does, 1 as a
// number joined to a text is written. Returns the length.
int WriteIntLong(long long v, int min_digits, char* out) {
  int n = 0;
  if (v < 0) out[n++] = '-', v = -v;
  char digits[24];
  int d = 0;
  do {
    digits[d++] = static_cast<char>('0' + v % 10);
    v /= 10;
  } while (v > 0);
  while (d < min_digits) digits[d++] = '0';
  while (d > 0) out[n++] = digits[--d];
  return n;
}
inline int WriteInt(long long v, int min_digits, char* out) {
  if (v >= 0 && v <= 99 && (v >= 10 || min_digits == 2)) {  // all the game ever writes
    out[0] = static_cast<char>('0' + v / 10), out[1] = static_cast<char>('0' + v % 10);
    return 2;
  }
  return WriteIntLong(v, min_digits, out);
}

// MaisBaixa, the lowest card of the ace-low straight, by deck size. The second row is 46 and not
// 48, so a 48-card deck finds no row, reads 0, and has no ace-low straight at all. With 20 cards
// the value is 13 and the ace-low test coincides with the ace-high one, which comes first.
struct MaisBaixaRow {
  int nro_cartas, mais_baixa;
};
constexpr MaisBaixaRow kMaisBaixa[] = {{52, 5},  {46, 6},  {44, 7},  {40, 8}, {36, 9},
                                       {32, 10}, {28, 11}, {24, 12}, {20, 13}};

// The same table by NroCartas, 0 where there is no row.
struct MaisBaixaIndex {
  std::uint8_t by_size[256];
};
constexpr MaisBaixaIndex MakeMaisBaixaIndex() {
  MaisBaixaIndex index{};
  for (const MaisBaixaRow& row : kMaisBaixa)
    index.by_size[row.nro_cartas] = static_cast<std::uint8_t>(row.mais_baixa);
  return index;
}
constexpr MaisBaixaIndex kMaisBaixaIndex = MakeMaisBaixaIndex();

// The class of a hand that is no straight and no flush, from four facts: there is a four of a
// kind, a three of a kind, two pairs, a pair. Index: 8 four + 4 three + 2 two pairs + 1 pair.
enum Grupo { kPO, kFU, kPI, kP2, kP1, kNN };
struct GrupoIndex {
  std::uint8_t of[16];
};
constexpr GrupoIndex MakeGrupoIndex() {
  GrupoIndex g{};
  for (int k = 0; k < 16; ++k) {
    const bool quadra = k & 8, trinca = k & 4, dois_pares = k & 2, par = k & 1;
    g.of[k] = quadra          ? kPO
              : trinca && par ? kFU
              : trinca        ? kPI
              : dois_pares    ? kP2
              : par           ? kP1
                              : kNN;
  }
  return g;
}
constexpr GrupoIndex kGrupo = MakeGrupoIndex();
constexpr char kGrupoCodigo[][3] = {"PO", "FU", "PI", "P2", "P1", "NN"};

// The hand code of a value string, into out (room for 6 characters); returns its length.
int JogoBuf(const char* valores, int len, char* out) {
  // Carta(i) is the i-th group of three characters: Val of its first two is the card's value,
  // its last character the suit (-1: none).
  int valor[6], naipe[6];
  if (len == 15) {  // five whole groups, as every hand of real cards gives
    for (int i = 1; i <= 5; ++i) {
      const char* carta = valores + 3 * i - 3;
      valor[i] = FieldInt(std::string_view(carta, 2));
      naipe[i] = static_cast<unsigned char>(carta[2]);
    }
  } else {
    const std::string_view v(valores, static_cast<std::size_t>(len));
    for (int i = 1; i <= 5; ++i) {
      const std::string_view carta = Mid(v, 3 * i - 2, 3);
      valor[i] = FieldInt(carta.substr(0, 2));
      naipe[i] = carta.empty() ? -1 : static_cast<unsigned char>(carta.back());
    }
  }

  // NaipesIguais counts the cards from the first on while they share its suit, SeqIguais the
  // cards of the run from the first on while each is one below the last. Nothing but a count of
  // five is ever read, so each comes down to one test over the whole hand.
  const bool naipes_iguais_5 = (naipe[2] == naipe[1]) & (naipe[3] == naipe[1]) &
                               (naipe[4] == naipe[1]) & (naipe[5] == naipe[1]);
  // The run is expected from the second card on: one below the first card; after an Ace, the
  // King, or else MaisBaixa, the top of the deck's ace-low run. An Ace followed by neither never
  // counts past 1.
  const int mais_baixa = kMaisBaixaIndex.by_size[NroCartas];
  const int esperado = valor[1] != 14 ? valor[1] - 1 : valor[2] == 13 ? 13 : mais_baixa;
  const bool seq_iguais_5 = (valor[2] == esperado) & (valor[3] == esperado - 1) &
                            (valor[4] == esperado - 2) & (valor[5] == esperado - 3);

  const char* classe;
  int valor1 = valor[1], valor2 = -1;
  if (seq_iguais_5 & naipes_iguais_5) {
    classe = "ER";
  } else if (seq_iguais_5) {
    classe = "ES";
  } else if (naipes_iguais_5) {
    classe = "CO";
  } else {
    // ContaValor: the number of cards of each value, four bits a value (value v at bit 4v).
    std::uint64_t conta_valor = 0;
    for (int i = 1; i <= 5; ++i) {
      if (valor[i] < 0 || valor[i] > 14) vb::Raise(vb::err::kSubscript);
      conta_valor += std::uint64_t{1} << (4 * valor[i]);
    }
    // The values that occur four, three and two times, as the lowest bit of their four. The scan
    // looks at values 1 to 14 only.
    constexpr std::uint64_t kLow = 0x1111111111111110;
    const std::uint64_t b0 = conta_valor & kLow, b1 = (conta_valor >> 1) & kLow,
                        b2 = (conta_valor >> 2) & kLow;
    const std::uint64_t quadra = b2 & ~b1 & ~b0, trinca = b1 & b0 & ~b2, pares = b1 & ~b0 & ~b2;
    const auto low = [](std::uint64_t m) { return std::countr_zero(m) / 4; };
    const auto high = [](std::uint64_t m) { return (63 - std::countl_zero(m)) / 4; };
    const bool dois_pares = (pares & (pares - 1)) != 0;
    // Five cards hold at most one four or three of a kind and two pairs. Scanning upwards, the
    // four ends the scan, the first pair found is the lower one and the second the higher.
    // The class comes from a table rather than a chain of tests: the class of a dealt hand is
    // a coin toss for the processor, and this runs for both sides at every turn.
    const int grupo =
        kGrupo.of[(quadra != 0) * 8 + (trinca != 0) * 4 + dois_pares * 2 + (pares != 0)];
    classe = kGrupoCodigo[grupo];
    const int por_grupo[] = {low(quadra), low(trinca), low(trinca),
                             high(pares), low(pares),  valor[1]};
    valor1 = por_grupo[grupo];
    valor2 = grupo == kP2 ? low(pares) : -1;
  }
  out[0] = classe[0], out[1] = classe[1];
  int n = 2 + WriteInt(valor1, 2, out + 2);
  if (valor2 >= 0) n += WriteInt(valor2, 2, out + n);
  return n;
}

// The classes a hand code can start with, and anything else.
enum Classe {
  kClasseOutra,
  kClasseER,
  kClassePO,
  kClasseCO,
  kClasseFU,
  kClassePI,
  kClasseES,
  kClasseP2,
  kClasseP1
};

// The class of a code by its first two characters, looked up rather than compared in turn.
struct ClasseIndex {
  std::uint8_t of[128][128];
};
constexpr ClasseIndex MakeClasseIndex() {
  ClasseIndex index{};
  const char* codes[] = {"ER", "PO", "CO", "FU", "PI", "ES", "P2", "P1"};
  for (int k = 0; k < 8; ++k)
    index.of[static_cast<int>(codes[k][0])][static_cast<int>(codes[k][1])] =
        static_cast<std::uint8_t>(k + 1);
  return index;
}
constexpr ClasseIndex kClasseIndex = MakeClasseIndex();

int ClasseDe(std::string_view jogo) {
  if (jogo.size() < 2) return kClasseOutra;
  const unsigned char c0 = static_cast<unsigned char>(jogo[0]),
                      c1 = static_cast<unsigned char>(jogo[1]);
  return (c0 | c1) < 128 ? int{kClasseIndex.of[c0][c1]} : int{kClasseOutra};
}

// The base of each class as a number, by [class][FullMataCor][TrioMataEscada]. With the start
// rules (False, True) a flush beats a full house and three of a kind beats a straight; each rule
// only swaps two bases. Two pairs and one pair add the pair values to 200 and 100.
constexpr int kBase[9][2][2] = {
    {{0, 0}, {0, 0}},          // anything else: "000"
    {{800, 800}, {800, 800}},  // ER
    {{700, 700}, {700, 700}},  // PO
    {{600, 600}, {500, 500}},  // CO
    {{500, 500}, {600, 600}},  // FU
    {{300, 400}, {300, 400}},  // PI
    {{400, 300}, {400, 300}},  // ES
    {{200, 200}, {200, 200}},  // P2
    {{100, 100}, {100, 100}},  // P1
};

bool IsTwoDigits(std::string_view s) {
  return s.size() == 2 && static_cast<unsigned>(s[0] - '0') < 10 &&
         static_cast<unsigned>(s[1] - '0') < 10;
}

const Hand& Cartas(bool Lado) {
  return Lado ? CartasPoker : CartasPlayer;
}

// Reads the score text: a text of plain digits is read directly, anything else as Val reads it.
std::int32_t ScoreOf(const char* text, int len) {
  if (len <= 9) {
    std::int32_t v = 0;
    int i = 0;
    for (; i < len; ++i) {
      const unsigned d = static_cast<unsigned char>(text[i]) - '0';
      if (d >= 10) break;
      v = v * 10 + static_cast<std::int32_t>(d);
    }
    if (i == len) return v;
  }
  return vb::CLng(vb::Val(std::string_view(text, static_cast<std::size_t>(len))));
}

}  // namespace

std::string ValoresDaMao(bool Lado) {
  char buf[16];
  return std::string(buf, static_cast<std::size_t>(ValoresBuf(Cartas(Lado), buf)));
}

std::string JogoDaMao(bool Lado) {
  char valores[16], jogo[8];
  const int vn = ValoresBuf(Cartas(Lado), valores);
  return std::string(jogo, static_cast<std::size_t>(JogoBuf(valores, vn, jogo)));
}

std::int32_t PontosDoJogo(std::string_view Jogo, std::string_view Valores) {
  const int classe = ClasseDe(Jogo);
  const std::string_view valores_do_jogo = Mid(Jogo, 3, 2);
  const int valor1 = FieldInt(valores_do_jogo);
  const int valor2 = classe == kClasseP2 ? FieldInt(Mid(Jogo, 5, 2)) : 0;

  // The base of the class, three digits. Two pairs carry the sum of both pairs in it, so they
  // are ranked by that sum first; one pair carries the pair.
  int base = kBase[classe][FullMataCor][TrioMataEscada];
  if (classe == kClasseP2) base += valor1 + valor2;
  if (classe == kClasseP1) base += valor1;

  // The sum of the five card values, written as a plain number: "52", or "0" for no values.
  int soma = 0;
  if (Valores.size() == 15) {
    for (std::size_t p = 0; p < 15; p += 3) soma += FieldInt(Valores.substr(p, 2));
  } else {
    for (std::size_t p = 1; p <= 13; p += 3) soma += FieldInt(Mid(Valores, p, 2));
  }

  // The score is the text base, values of the code, sum, read as a number. When the three are
  // three, two and two plain digits, as they are for every hand of the game, that is the same
  // as setting them side by side.
  const bool com_par = classe == kClasseP2 || classe == kClasseP1;
  const int base_lo = classe == kClasseP2 ? 200 : 100;
  if ((!com_par || (base >= base_lo && base <= base_lo + 99)) && IsTwoDigits(valores_do_jogo) &&
      soma >= 10 && soma <= 99)
    return base * 10000 + valor1 * 100 + soma;

  char texto[48];
  int n = 0;
  if (com_par) {
    texto[n++] = classe == kClasseP2 ? '2' : '1';
    n += WriteInt(base - base_lo, 2, texto + n);
  } else {
    n += WriteInt(base / 100, 1, texto + n);
    n += WriteInt(base % 100, 2, texto + n);
  }
  for (char c : valores_do_jogo) texto[n++] = c;
  n += WriteInt(soma, 1, texto + n);
  return ScoreOf(texto, n);
}

namespace {

// Puts a text of known length into a shared string, reusing the room it has.
template <std::size_t N>
void PutText(std::string& s, const char* text) {
  if (s.size() != N) s.resize(N);
  std::memcpy(s.data(), text, N);
}

}  // namespace

void AnalisarJogo(bool Lado) {
  char valores[16];
  char jogo[8] = {' ', ' ', ' ', ' ', ' ', ' ', ' ', ' '};
  const int vn = ValoresBuf(Cartas(Lado), valores);
  std::string& valores_lado = Lado ? ValoresPoker : ValoresPlayer;
  if (vn == 15) {
    PutText<15>(valores_lado, valores);
  } else {
    valores_lado.assign(valores, static_cast<std::size_t>(vn));
  }

  // JogoTemp is a six-character text: a shorter code is filled with blanks on the right.
  JogoBuf(valores, vn, jogo);
  PutText<6>(JogoTemp, jogo);
  PutText<2>(Lado ? JogoPoker : JogoPlayer, jogo);

  // The player's score, too, is built from the opponent's value string.
  (Lado ? PontosPoker : PontosPlayer) = PontosDoJogo(JogoTemp, ValoresPoker);
}
