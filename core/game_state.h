// The game's state: one process-wide block of plain shared variables, read and written freely by
// every routine and by the main form's handlers. There is no game object; a hand is a run of
// event handlers that talk only through these variables.
//
// Every variable is declared once, in the lists below, with its type and its value at process
// start. The same lists define the variables and reset them, so a variable added here is always
// reset by ResetGameState() (tests start each case from a fresh process state).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "platform/runtime.h"

// The phase of the hand: a two-character text holding a number. It is written as a number turned
// to text and read as a number; blank (before the first hand) reads as 0.
class FaseVar {
 public:
  operator int() const { return number_; }  // NOLINT: the game compares it as a number everywhere
  FaseVar& operator=(int value);
  const std::string& Text() const { return text_; }

  using Observer = void (*)(const std::string& from, const std::string& to);
  static void Observe(Observer observer);

 private:
  std::string text_;
  int number_ = 0;  // the text read as a number, kept with it (blank reads 0)
};

using Deck = std::array<std::string, 53>;  // 1-based: Baralho(1) .. Baralho(52)
using Hand = std::array<std::string, 6>;   // 1-based: five cards, kept sorted

// clang-format off
#define POKERZEVA_SETTINGS(X)                                                                    \
  X(std::uint8_t, NroCartas, 0)        /* deck size: 52, 48, ... 20 */                           \
  X(vb::Integer, NroFichas, 0)         /* chips each side starts with */                         \
  X(std::uint8_t, MaxTroca, 0)         /* most cards a side may exchange */                      \
  X(float, ValorFicha, 0.0f)           /* money value of one chip, for the money labels only */  \
  X(std::string, MeuNome, "")          /* the player's name */                                    \
  X(std::uint8_t, Dorso, 0)            /* index of the chosen card back */                       \
  X(bool, FullMataCor, false)          /* house rule: a full house beats a flush */              \
  X(bool, TrioMataEscada, false)       /* house rule: three of a kind beats a straight */        \
  X(bool, LimiteAbertura, false)       /* the opening stake is limited */                        \
  X(vb::Integer, LimiteFichas, 0)      /* largest opening stake */                               \
  X(bool, EfeitosOn, false)            /* sound effects and jingles; gates all sound */          \
  X(bool, MusicaOn, false)             /* background tracks (played only with effects on) */     \
  X(bool, VerBaralho, false)           /* cheat: the deck laid out on the table */               \
  X(bool, VerCartas, false)            /* cheat: the opponent's cards face up */                 \
  X(std::uint8_t, Trilha, 0)           /* background track 1 to 3, 0 before the first */        \
  X(std::uint8_t, TocandoEfeito, 0)    /* which shuffle melody plays next */                     \
  X(std::int32_t, MusicTime, 0)        /* ticks of the music clock */                            \
  X(float, Semente, 0.0f)              /* the reseed value; also the last mood drawn */

#define POKERZEVA_CARDS(X)                                                                       \
  X(Deck, Baralho, {})                 /* the deck in its present order */                       \
  X(Hand, CartasPoker, {})             /* the opponent's hand */                                 \
  X(Hand, CartasPlayer, {})            /* the player's hand */                                   \
  X(std::string, ValoresPoker, "")     /* value string of the opponent's hand */                 \
  X(std::string, ValoresPlayer, "")    /* value string of the player's hand */                   \
  X(std::string, JogoTemp, "")         /* hand code of the side analysed last */                 \
  X(std::string, JogoPoker, "")        /* class of the opponent's hand: ER PO CO FU ES PI ... */ \
  X(std::string, JogoPlayer, "")       /* class of the player's hand */                          \
  X(std::int32_t, PontosPoker, 0)      /* score of the opponent's hand */                        \
  X(std::int32_t, PontosPlayer, 0)     /* score of the player's hand */                          \
  X(std::uint8_t, CartasTrocaPoker, 0) /* cards the opponent exchanges this hand */              \
  X(std::uint8_t, CartasTrocaPlayer, 0) /* cards the player exchanged this hand */               \
  X(std::string, ListaTroca, "")       /* the cards the opponent keeps, with their class */

#define POKERZEVA_PROGRESS(X)                                                                    \
  X(bool, Iniciado, false)             /* settings were loaded; never True in this version */    \
  X(FaseVar, Fase, {})                 /* the phase of the hand */                               \
  X(vb::Integer, NroMao, 0)            /* hand counter; 2 during the first hand */               \
  X(bool, MaoPlayer, false)            /* True: the OPPONENT holds the hand */

#define POKERZEVA_CHIPS(X)                                                                       \
  X(std::int32_t, FichasPlayer, 0)     /* chips in front of the player */                        \
  X(std::int32_t, FichasPoker, 0)      /* chips in front of the opponent */                      \
  X(vb::Integer, MesaPingo, 0)         /* centre pot: antes and undecided hands */               \
  X(std::int32_t, MesaPote, 0)         /* the player's chips on the table this hand */           \
  X(vb::Integer, MesaApostas, 0)       /* the opponent's chips on the table this hand */         \
  X(std::int32_t, AberturaPlayer, 0)                                                             \
  X(std::int32_t, AumentoAberturaPlayer, 0)                                                      \
  X(vb::Integer, TotalAberturaPlayer, 0)                                                         \
  X(std::int32_t, ApostaPlayer, 0)                                                               \
  X(vb::Integer, TotalApostaPlayer, 0)                                                           \
  X(std::int32_t, AberturaPoker, 0)                                                              \
  X(std::int32_t, AumentoAberturaPoker, 0)                                                       \
  X(vb::Integer, TotalAberturaPoker, 0)                                                          \
  X(std::int32_t, ApostaPoker, 0)                                                                \
  X(vb::Integer, TotalApostaPoker, 0)

// Members of the main form that several routines share.
#define POKERZEVA_FORM_MEMBERS(X)                                                                \
  X(bool, JogoEmpatado, false)         /* a tied showdown: the next hand replays it */           \
  X(std::int32_t, ContaEspera, 0)      /* ticks left of the running Esperar */                   \
  X(bool, PokerJaTrocou, false)        /* the opponent has exchanged in this hand */             \
  X(bool, ApostouTudo, false)          /* set by CmdTudo, cleared by NovaMao; nothing reads it */ \
  X(bool, PassouSemCobrir, false)      /* empty turns below her stake; never reset */            \
  X(bool, FocoAcabei, false)           /* CmdAcabei holds the focus */                           \
  X(std::uint8_t, MarcadasTroca, 0)    /* cards marked for the exchange */                       \
  X(bool, TrocaFechada, false)         /* the marks are closed */

#define POKERZEVA_ALL_STATE(X) \
  POKERZEVA_SETTINGS(X) POKERZEVA_CARDS(X) POKERZEVA_PROGRESS(X) POKERZEVA_CHIPS(X) \
  POKERZEVA_FORM_MEMBERS(X)
// clang-format on

#define POKERZEVA_DECLARE(type, name, start) extern type name;
POKERZEVA_ALL_STATE(POKERZEVA_DECLARE)
#undef POKERZEVA_DECLARE

// Every variable back to its value at process start.
void ResetGameState();

// The settings at start of the program (the menu check marks follow when the menu exists).
void ValoresIniciais();
