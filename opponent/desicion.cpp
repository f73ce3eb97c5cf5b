#include "opponent/desicion.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/game_state.h"
#include "platform/rnd.h"
#include "platform/runtime.h"

namespace {

// ---------------------------------------------------------------------------------------------
// Moods and table rows.
//
// Most of her choices are written as rows "these moods -> this outcome". A table lists the rows of
// one situation; the first row holding the mood decides. kOthers stands for every mood that an
// earlier row of the same table did not take.

using MoodSet = std::uint16_t;

template <class... M>
constexpr MoodSet S(M... moods) {
  return static_cast<MoodSet>(((1u << moods) | ...));
}
constexpr MoodSet kOthers = 0x1FF;

enum class Kind {
  kZero,        // she passes, folds or stands pat
  kKeep,        // the stage's variable stays as it stands
  kBand,        // a..b, one further draw
  kCover,       // exactly the amount she must answer at this stage
  kCoverPlus,   // that amount plus a..b
  kAllChips,    // everything in front of her
  kExcesso,     // how far the player's opening stake is above hers
  kFixed,       // the number a
  kCards,       // MaxTroca cards, but at most a
  kLimite,      // LimiteFichas
  kLimitePlus,  // LimiteFichas, plus a..b when no opening limit is in force
};

struct Outcome {
  Kind kind;
  int a = 0;
  int b = 0;
};

constexpr Outcome Zero{Kind::kZero};
constexpr Outcome Keep{Kind::kKeep};
constexpr Outcome Cover{Kind::kCover};
constexpr Outcome AllChips{Kind::kAllChips};
constexpr Outcome Excesso{Kind::kExcesso};
constexpr Outcome Limite{Kind::kLimite};
constexpr Outcome AllCards{Kind::kCards, 255};
constexpr Outcome Band(int a, int b) {
  return {Kind::kBand, a, b};
}
constexpr Outcome CoverPlus(int a, int b) {
  return {Kind::kCoverPlus, a, b};
}
constexpr Outcome Fixed(int n) {
  return {Kind::kFixed, n};
}
constexpr Outcome CardsUpTo(int n) {
  return {Kind::kCards, n};
}
constexpr Outcome LimitePlus(int a, int b) {
  return {Kind::kLimitePlus, a, b};
}

struct Row {
  MoodSet moods;
  Outcome outcome;
};

// The rows of one situation, in order.
struct Table {
  std::array<Row, 4> rows;
  std::size_t count;
};

// Builds a table and refuses, at compile time, one where a mood is missing or listed twice.
template <std::size_t N>
consteval Table Rows(const Row (&rows)[N]) {
  static_assert(N <= 4, "a table has at most four rows");
  Table table{};
  MoodSet seen = 0;
  for (std::size_t i = 0; i < N; ++i) {
    const Row& row = rows[i];
    if (row.moods == kOthers) {
      if (seen == kOthers) throw "kOthers has no mood left";
      seen = kOthers;
    } else {
      if ((seen & row.moods) != 0) throw "a mood is listed twice";
      seen |= row.moods;
    }
    table.rows[i] = row;
  }
  if (seen != kOthers) throw "a mood is missing";
  table.count = N;
  return table;
}

// ---------------------------------------------------------------------------------------------
// The class groups. A class belongs to a group when its two letters occur in the group's text.

constexpr std::string_view kGrupoForte = "ERESCOPOFU";  // a straight or better
constexpr std::string_view kTwoPairsOrBetterNoStraight = "ERCOPOFUPIP2";
constexpr std::string_view kFlushOrBetterNoStraight = "ERCOPOFU";
constexpr std::string_view kOnePairOrLess = "P1NN";
constexpr std::string_view kTwoPairsOrBetter = "ERESCOPOFUPIP2";
constexpr std::string_view kTripsOrBetter = "ERESCOPOFUPI";

// A number read from any of the game's whole-number variables.
double Num(std::int32_t v) {
  return v;
}

bool In(std::string_view group, const std::string& cls) {
  return group.find(cls) != std::string_view::npos;
}

// She knows the player's score; a tie does not count as him being ahead.
bool PlayerAhead() {
  return PontosPlayer > PontosPoker;
}

// What she lacks to match the player's chips on the table, both rounds together.
double Falta() {
  return Num(MesaPote) - Num(MesaApostas);
}

// ---------------------------------------------------------------------------------------------
// Drawing.

int DrawMood() {
  vb::Randomize(Semente);
  Semente = static_cast<float>(vb::DrawInt(9));
  return static_cast<int>(Semente);
}

double DrawBand(int a, int b) {
  return vb::DrawInt(b - a + 1, a);
}

struct Turn {
  int mood;
  double current;       // the stage's variable as it stands
  bool stake_at_limit;  // the player's opening stake equals LimiteFichas, seen before the mood
};

double Evaluate(const Outcome& o, const Turn& t, double cover) {
  switch (o.kind) {
    case Kind::kZero:
      return 0;
    case Kind::kKeep:
      return t.current;
    case Kind::kBand:
      return DrawBand(o.a, o.b);
    case Kind::kCover:
      return cover;
    case Kind::kCoverPlus:
      return cover + DrawBand(o.a, o.b);
    case Kind::kAllChips:
      return Num(FichasPoker);
    case Kind::kExcesso:
      return Num(AberturaPlayer) - Num(AberturaPoker);
    case Kind::kFixed:
      return o.a;
    case Kind::kCards:
      return std::min<int>(MaxTroca, o.a);
    case Kind::kLimite:
      return Num(LimiteFichas);
    case Kind::kLimitePlus:
      return LimiteAbertura ? Num(LimiteFichas) : Num(LimiteFichas) + DrawBand(o.a, o.b);
  }
  return t.current;
}

double Pick(const Table& table, const Turn& t, double cover = 0) {
  for (std::size_t i = 0; i < table.count; ++i) {
    const Row& row = table.rows[i];
    if ((row.moods >> t.mood) & 1u) return Evaluate(row.outcome, t, cover);
  }
  return t.current;
}

// ---------------------------------------------------------------------------------------------
// "CAR": how many cards she throws away, by her own class. M is MaxTroca.

constexpr auto kCarNothing = Rows({
    {S(0, 1, 2, 3, 8), Zero},  // stands pat on nothing
    {S(4, 5, 6, 7), AllCards},
});
constexpr auto kCarOnePairTrioMata = Rows({
    {S(0), Zero},
    {S(1, 4, 7), CardsUpTo(3)},
    {S(2, 5, 6, 8), CardsUpTo(3)},
    {S(3), AllCards},
});
constexpr auto kCarOnePair = Rows({
    {S(0), Zero},
    {S(1, 4, 7), CardsUpTo(3)},
    {S(2, 5, 6), CardsUpTo(4)},
    {S(3, 8), AllCards},
});
constexpr auto kCarTwoPairs = Rows({
    {S(0), Zero},
    {S(1, 4, 7), AllCards},  // throws both pairs away
    {S(2, 3, 5, 6, 8), Fixed(1)},
});
constexpr auto kCarTripsTrioMata = Rows({
    {S(0, 1, 4, 7), Zero},
    {S(2, 5, 6, 8), CardsUpTo(2)},
    {S(3), AllCards},
});
constexpr auto kCarTrips = Rows({
    {S(0, 1, 4, 7), Zero},
    {S(2, 5, 6), CardsUpTo(4)},
    {S(3, 8), AllCards},
});
// Her straight against the player's trips when trips beat a straight: she sees she is beaten.
constexpr auto kCarStraightBeaten = Rows({
    {S(1, 4, 7), CardsUpTo(5)},
    {kOthers, Zero},
});

double Car(const Turn& t) {
  if (JogoPoker == "NN") return Pick(kCarNothing, t);
  if (JogoPoker == "P1") return Pick(TrioMataEscada ? kCarOnePairTrioMata : kCarOnePair, t);
  if (JogoPoker == "P2") return Pick(kCarTwoPairs, t);
  if (JogoPoker == "PI") return Pick(TrioMataEscada ? kCarTripsTrioMata : kCarTrips, t);
  if (JogoPoker == "ES") {
    if (JogoPlayer == "PI" && TrioMataEscada) return Pick(kCarStraightBeaten, t);
    return 0;
  }
  if (JogoPoker == "ER" || JogoPoker == "PO" || JogoPoker == "FU" || JogoPoker == "CO") return 0;
  return t.current;
}

// ---------------------------------------------------------------------------------------------
// "ABRE": she speaks first in the opening round. Against more than one pair her own cards don't
// matter, only who is ahead; behind, she still opens in three moods of nine.

constexpr auto kAbreHeIsStrongAhead = Rows({
    {S(2, 5, 8), Band(30, 59)},
    {kOthers, Zero},
});
constexpr auto kAbreHeIsStrongBehind = Rows({
    {S(1, 2, 6, 8), Band(40, 79)},
    {S(0, 3, 4, 5, 7), Band(10, 29)},
});
constexpr auto kAbreHeIsWeak = Rows({
    {S(0, 2, 3, 5), Band(5, 9)},
    {S(1, 7), Band(20, 39)},
    {S(4, 6, 8), Band(40, 59)},
});
constexpr auto kAbreHeIsWeakButAhead = Rows({
    {S(0, 2, 3, 5, 8), Band(5, 39)},
    {S(1, 7), Band(10, 29)},
    {S(4, 6), Zero},
});
constexpr auto kAbreHisStraightHerStrong = Rows({
    {S(0, 2, 4, 6, 8), Band(10, 19)},
    {S(1, 3, 5, 7), Band(20, 99)},
});
constexpr auto kAbreHisStraightHerWeak = Rows({
    {S(0, 3, 5), Band(10, 99)},
    {S(1, 7), Band(20, 39)},
    {S(2, 4, 6), Band(5, 19)},
    {S(8), Zero},
});
constexpr auto kAbreStraightsHeIsAhead = Rows({
    {S(0, 2, 4, 7), LimitePlus(0, 199)},
    {kOthers, Zero},
});
constexpr auto kAbreStraightsHeIsBehind = Rows({
    {S(1, 3, 6, 7), LimitePlus(50, 399)},
    {kOthers, Limite},
});

double Abre(const Turn& t) {
  if (t.stake_at_limit) return 0;
  const bool ahead = PlayerAhead();
  if (In(kTwoPairsOrBetterNoStraight, JogoPlayer)) {
    return Pick(ahead ? kAbreHeIsStrongAhead : kAbreHeIsStrongBehind, t);
  }
  if (In(kOnePairOrLess, JogoPlayer)) {
    if (In(kFlushOrBetterNoStraight, JogoPoker) || !ahead) return Pick(kAbreHeIsWeak, t);
    return Pick(kAbreHeIsWeakButAhead, t);
  }
  if (JogoPlayer == "ES") {
    if (In(kTwoPairsOrBetterNoStraight, JogoPoker)) return Pick(kAbreHisStraightHerStrong, t);
    if (In(kOnePairOrLess, JogoPoker)) return Pick(kAbreHisStraightHerWeak, t);
    if (JogoPoker == "ES") {
      return Pick(ahead ? kAbreStraightsHeIsAhead : kAbreStraightsHeIsBehind, t);
    }
  }
  return t.current;
}

// ---------------------------------------------------------------------------------------------
// "CUBRE1": answer to the player's opening stake P. Cover is P; zero is giving up.

constexpr auto kCubre1TinyHerStrong = Rows({
    {S(0, 2, 4, 6, 8), Cover},
    {S(1, 3, 5, 7), CoverPlus(10, 19)},
});
constexpr auto kCubre1Tiny = Rows({
    {S(0, 2, 4, 5, 8), Cover},
    {S(3, 6), CoverPlus(10, 19)},
    {S(1, 7), Zero},
});
constexpr auto kCubre1MiddleHerStrong = Rows({
    {S(0), Zero},  // the mood of nothing gives up any hand
    {S(1, 3, 5, 7), CoverPlus(20, 99)},
    {S(2, 4, 6), CoverPlus(10, 49)},
    {S(8), AllChips},
});
constexpr auto kCubre1Middle = Rows({
    {S(0, 2, 4, 6, 8), Cover},
    {S(5), CoverPlus(20, 99)},
    {S(7), CoverPlus(10, 49)},
    {S(1, 3), Zero},
});
constexpr auto kCubre1BigHeIsAheadHuge = Rows({
    {S(0, 2), Cover},
    {kOthers, Zero},
});
constexpr auto kCubre1BigHeIsAheadHalfLimit = Rows({
    {S(2, 7), Cover},
    {kOthers, Zero},
});
constexpr auto kCubre1BigHeIsAheadSmall = Rows({
    {S(1, 3, 6), Cover},
    {kOthers, Zero},
});
constexpr auto kCubre1BigHeIsStrongBehind = Rows({
    {S(0), Zero},
    {S(1, 4, 5, 7, 8), Cover},
    {S(2), AllChips},
    {S(3, 6), CoverPlus(30, 99)},
});
constexpr auto kCubre1BigHerStrong = Rows({
    {S(0), Zero},
    {S(1, 3, 5, 7), CoverPlus(20, 99)},
    {S(2), AllChips},
    {S(4, 6, 8), CoverPlus(10, 19)},
});
constexpr auto kCubre1BigNeitherStrong = Rows({
    {S(0), Zero},
    {S(1, 3, 5, 7), Cover},
    {S(2, 4, 6, 8), CoverPlus(10, 19)},
});

double Cubre1(const Turn& t) {
  const double p = AberturaPlayer;
  const bool her_strong = In(kGrupoForte, JogoPoker);
  const bool his_strong = In(kGrupoForte, JogoPlayer);
  if (p <= 0) return p;
  if (p <= 5) return Pick(her_strong ? kCubre1TinyHerStrong : kCubre1Tiny, t, p);
  if (p <= 50) return Pick(her_strong ? kCubre1MiddleHerStrong : kCubre1Middle, t, p);
  if (his_strong && PlayerAhead()) {
    if (p > 100) return Pick(kCubre1BigHeIsAheadHuge, t, p);
    if (p >= Num(LimiteFichas) / 2) return Pick(kCubre1BigHeIsAheadHalfLimit, t, p);
    return Pick(kCubre1BigHeIsAheadSmall, t, p);
  }
  if (his_strong) return Pick(kCubre1BigHeIsStrongBehind, t, p);
  if (her_strong) return Pick(kCubre1BigHerStrong, t, p);
  return Pick(kCubre1BigNeitherStrong, t, p);
}

// ---------------------------------------------------------------------------------------------
// "CUBRE2": answer to the player's raise. Cover is Falta, what she lacks on the table.

constexpr auto kCubre2SmallLack = Rows({
    {S(0, 1), Zero},  // but one chip short gives two, see below
    {S(2, 4, 6, 8), CoverPlus(10, 49)},
    {S(3, 5, 7), Cover},
});
constexpr auto kCubre2HerStrong = Rows({
    {S(0, 2, 4, 8), CoverPlus(1, 4)},
    {S(1, 6), Zero},
    {S(3, 5, 7), Cover},
});
// The two rows against his strong hand mirror each other: the moods that fold to a moderate
// raise stay in a huge one, and the reverse.
constexpr auto kCubre2HeIsStrongModerate = Rows({
    {S(0), CoverPlus(10, 249)},
    {S(1, 3, 6), Zero},
    {S(2, 4, 5, 8), Excesso},
    {S(7), Cover},
});
constexpr auto kCubre2HeIsStrongHuge = Rows({
    {S(0), AllChips},
    {S(1, 3, 6), Excesso},
    {S(2, 4, 5, 8), Zero},
    {S(7), Cover},
});
constexpr auto kCubre2NeitherStrong = Rows({
    {S(0, 2, 4, 8), Cover},
    {S(1, 6), Zero},
    {S(3, 5, 7), CoverPlus(5, 49)},
});

double Cubre2(const Turn& t) {
  const double falta = Falta();
  if (falta < 10) {
    if (falta == 1 && (t.mood == 0 || t.mood == 1)) return 2;  // one chip more than the lack
    return Pick(kCubre2SmallLack, t, falta);
  }
  if (In(kGrupoForte, JogoPoker)) return Pick(kCubre2HerStrong, t, falta);
  if (In(kGrupoForte, JogoPlayer)) {
    const double excesso = Num(AberturaPlayer) - Num(AberturaPoker);
    return Pick(excesso <= 250 ? kCubre2HeIsStrongModerate : kCubre2HeIsStrongHuge, t, falta);
  }
  return Pick(kCubre2NeitherStrong, t, falta);
}

// ---------------------------------------------------------------------------------------------
// "CUBRE3": last answer of the opening round. Cover is Falta.

constexpr auto kCubre3LevelHeStoodStill = Rows({
    {S(0, 1), Band(100, 249)},
    {S(2, 4, 6, 8), Band(10, 49)},
    {S(3, 5, 7), Zero},
});
constexpr auto kCubre3SmallLack = Rows({
    {S(0), Zero},
    {kOthers, Cover},
});

double Cubre3(const Turn& t) {
  const double falta = Falta();
  if (falta == 0) return Num(TotalAberturaPlayer) != 0 ? 0 : Pick(kCubre3LevelHeStoodStill, t);
  if (falta == 1) return 1;  // one chip short: she always puts it in
  if (falta < 10) return Pick(kCubre3SmallLack, t, falta);
  if (In(kGrupoForte, JogoPoker) || !In(kGrupoForte, JogoPlayer)) return falta;
  // He holds a strong hand and she does not: she answers his whole excess over her two stakes,
  // unless it is too large.
  if (t.mood == 7) return falta;
  const double excesso_total = (Num(AberturaPlayer) + Num(AumentoAberturaPlayer)) -
                               (Num(AberturaPoker) + Num(AumentoAberturaPoker));
  return excesso_total <= 250 ? excesso_total : 0;
}

// ---------------------------------------------------------------------------------------------
// "FINAL": she speaks first in the final round. T is the player's chips on the table. Her weak
// hands read how many cards he took as a tell: one card is feared least, more cards, more chips.

constexpr auto kFinalEmptyHeIsAhead = Rows({
    {S(1, 3, 4, 8), Band(50, 99)},
    {kOthers, Zero},
});
constexpr auto kFinalEmptyHeIsBehind = Rows({
    {S(1, 3, 6, 8), Band(80, 99)},
    {kOthers, Band(50, 99)},
});
constexpr auto kFinalHerStrong = Rows({
    {S(1, 4, 7), Band(80, 129)},
    {S(2, 6, 8), Band(40, 79)},
    {S(0), Zero},
    {S(3, 5), Keep},
});
constexpr auto kFinalHeStoodPat = Rows({
    {S(0, 8), Band(20, 49)},
    {S(3, 5), Band(5, 19)},
    {kOthers, Zero},
});
constexpr auto kFinalHeTookOne = Rows({
    {S(1, 4, 7), Band(80, 129)},
    {S(2, 6, 8), Band(40, 79)},
    {S(0, 3, 5), Band(10, 39)},
});
constexpr auto kFinalHeTookTwo = Rows({
    {S(0), Zero},
    {S(1, 3, 4, 5, 7), Band(5, 29)},
    {S(2, 6, 8), Band(30, 49)},
});
constexpr auto kFinalHeTookThree = Rows({
    {S(0, 6, 8), Band(50, 99)},
    {S(1, 3, 4, 5, 7), Band(10, 49)},
    {S(2), AllChips},
});
constexpr auto kFinalHeTookFour = Rows({
    {S(0, 6, 8), Band(50, 99)},
    {S(1, 3, 4, 5, 7), Band(100, 129)},
    {S(2), AllChips},
});
constexpr Table kFinalByCardsHeTook[] = {kFinalHeStoodPat, kFinalHeTookOne, kFinalHeTookTwo,
                                         kFinalHeTookThree, kFinalHeTookFour};
constexpr auto kFinalFullHeIsAhead = Rows({
    {S(1, 3), Band(40, 99)},
    {S(5, 7), Band(5, 39)},
    {S(0, 2, 4, 6, 8), Zero},
});
constexpr auto kFinalFullHeIsBehind = Rows({
    {S(0), Zero},
    {S(1, 3, 5, 7), Band(130, 199)},
    {S(2), AllChips},
    {S(4, 6, 8), Band(50, 129)},
});

double Final(const Turn& t) {
  const int pote = MesaPote;
  if (pote == 0) return Pick(PlayerAhead() ? kFinalEmptyHeIsAhead : kFinalEmptyHeIsBehind, t);
  if (pote >= 1 && pote <= 130) {
    if (In(kGrupoForte, JogoPoker)) return Pick(kFinalHerStrong, t);
    return Pick(kFinalByCardsHeTook[std::min<int>(CartasTrocaPlayer, 4)], t);
  }
  if (pote >= 131) return Pick(PlayerAhead() ? kFinalFullHeIsAhead : kFinalFullHeIsBehind, t);
  return t.current;
}

// ---------------------------------------------------------------------------------------------
// "CUBREFINAL1": answer to the player's final stake A. Cover is A. F is the player's chips left.

constexpr auto kCubreFinal1NoStakeHerStrong = Rows({
    {S(0, 4, 8), Band(10, 19)},
    {S(1, 7), Band(20, 99)},
    {S(2, 3, 5, 6), Zero},
});
constexpr auto kCubreFinal1SmallHerStrong = Rows({
    {S(1, 3, 5, 7), CoverPlus(20, 99)},
    {S(0, 2, 4, 6, 8), CoverPlus(10, 19)},
});
constexpr auto kCubreFinal1Small = Rows({
    {S(1, 8), Zero},
    {kOthers, Cover},
});
constexpr auto kCubreFinal1BigHeIsWeak = Rows({
    {S(5), Zero},
    {kOthers, Cover},
});
constexpr auto kCubreFinal1BigHeIsAhead = Rows({
    {S(1, 3, 7), Cover},
    {kOthers, Zero},
});
// His strong hand, not ahead of her: on a big table, and also when his last chips are in.
constexpr auto kCubreFinal1HeIsStrongBehind = Rows({
    {S(1, 2, 3, 6, 8), CoverPlus(30, 99)},
    {S(0, 4, 5, 7), Cover},
});
constexpr auto kCubreFinal1AllInHeIsWeak = Rows({
    {S(0, 5), Zero},
    {kOthers, Cover},
});
constexpr auto kCubreFinal1AllInHeIsAhead = Rows({
    {S(0, 2, 6), Cover},
    {kOthers, Zero},
});

double CubreFinal1(const Turn& t) {
  const double a = ApostaPlayer;
  const double pote = MesaPote;
  const double f = FichasPlayer;
  const bool her_strong = In(kGrupoForte, JogoPoker);
  const bool his_strong = In(kGrupoForte, JogoPlayer);
  if (f == 0 && a == 0) return 0;
  if (f > 0 && a == 0) return her_strong ? Pick(kCubreFinal1NoStakeHerStrong, t) : 0;
  if (f > 0 && a <= 90) {
    return Pick(her_strong ? kCubreFinal1SmallHerStrong : kCubreFinal1Small, t, a);
  }
  if (f > 0 && pote > 90) {
    if (!his_strong) return Pick(kCubreFinal1BigHeIsWeak, t, a);
    return Pick(PlayerAhead() ? kCubreFinal1BigHeIsAhead : kCubreFinal1HeIsStrongBehind, t, a);
  }
  if (f > 0) return t.current;  // a big stake on a small table: she keeps what she had
  if (f == 0) {
    if (!his_strong) return Pick(kCubreFinal1AllInHeIsWeak, t, a);
    return Pick(PlayerAhead() ? kCubreFinal1AllInHeIsAhead : kCubreFinal1HeIsStrongBehind, t, a);
  }
  return t.current;
}

// ---------------------------------------------------------------------------------------------
// "CUBREFINAL2": last answer of the final round. One pair or nothing against trips or better
// gives up in seven moods of nine; otherwise she covers.

double CubreFinal2(const Turn& t) {
  if (In(kTwoPairsOrBetter, JogoPoker) || !In(kTripsOrBetter, JogoPlayer) || t.mood == 6 ||
      t.mood == 7) {
    return Falta();
  }
  return 0;
}

// ---------------------------------------------------------------------------------------------
// The stages and how each one closes.

enum Closing : unsigned {
  kCardLimit = 1u << 0,     // no more cards than MaxTroca (and no chip ceiling)
  kChipCeiling = 1u << 1,   // never more than the chips in front of her
  kWholePart = 1u << 2,     // the integer part
  kShortStack = 1u << 3,    // he has no chips left and she is within 20 of his table chips: all in
  kOpeningLimit = 1u << 4,  // the opening limit, when in force
  kFinalRound = 1u << 5,    // nothing the player could not answer with no chips left
};

struct Stage {
  std::string_view key;
  double (*decide)(const Turn&);
  unsigned closing;
  double (*read)();
  void (*write)(double);
};

constexpr Stage kStages[] = {
    {"CAR", Car, kCardLimit, [] { return Num(CartasTrocaPoker); },
     [](double r) { CartasTrocaPoker = vb::CByte(r); }},
    {"ABRE", Abre, kChipCeiling | kWholePart | kShortStack | kOpeningLimit,
     [] { return Num(AberturaPoker); }, [](double r) { AberturaPoker = vb::CLng(r); }},
    {"CUBRE1", Cubre1, kChipCeiling | kWholePart | kShortStack | kOpeningLimit,
     [] { return Num(AberturaPoker); }, [](double r) { AberturaPoker = vb::CLng(r); }},
    {"CUBRE2", Cubre2, kChipCeiling | kWholePart, [] { return Num(AumentoAberturaPoker); },
     [](double r) { AumentoAberturaPoker = vb::CLng(r); }},
    {"CUBRE3", Cubre3, kChipCeiling, [] { return Num(TotalAberturaPoker); },
     [](double r) { TotalAberturaPoker = vb::CInt(r); }},
    {"FINAL", Final, kChipCeiling | kWholePart | kFinalRound, [] { return Num(ApostaPoker); },
     [](double r) { ApostaPoker = vb::CLng(r); }},
    {"CUBREFINAL1", CubreFinal1, kChipCeiling | kWholePart | kFinalRound,
     [] { return Num(ApostaPoker); }, [](double r) { ApostaPoker = vb::CLng(r); }},
    {"CUBREFINAL2", CubreFinal2, kChipCeiling, [] { return Num(TotalApostaPoker); },
     [](double r) { TotalApostaPoker = vb::CInt(r); }},
};

double Close(unsigned closing, double r) {
  if ((closing & kCardLimit) && r > MaxTroca) r = MaxTroca;
  if ((closing & kChipCeiling) && r > FichasPoker) r = Num(FichasPoker);
  if (closing & kWholePart) r = vb::Int(r);
  if ((closing & kShortStack) && FichasPlayer == 0 && Num(FichasPoker) - Num(MesaPote) < 20) {
    r = Num(FichasPoker);
  }
  if ((closing & kOpeningLimit) && LimiteAbertura && r > Num(LimiteFichas)) {
    r = Num(LimiteFichas);
  }
  if ((closing & kFinalRound) && FichasPlayer == 0 && Num(MesaPote) < r + Num(MesaApostas)) {
    r = Falta();
  }
  return r;
}

}  // namespace

void Desicion(const std::string& Estagio) {
  const auto stage = std::find_if(std::begin(kStages), std::end(kStages),
                                  [&](const Stage& s) { return s.key == Estagio; });
  if (stage == std::end(kStages)) return;

  // "ABRE" looks, before her mood, at whether the player's stake already stands at the limit.
  const bool stake_at_limit = stage->key == "ABRE" && AberturaPlayer == Num(LimiteFichas);
  const Turn turn{DrawMood(), stage->read(), stake_at_limit};
  stage->write(Close(stage->closing, stage->decide(turn)));
}
