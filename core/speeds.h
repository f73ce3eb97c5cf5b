// Every pace of the game in one place: the pauses of Esperar, in ticks of so many milliseconds,
// and the clocks of the table (the music, the chip keys, the shuffle).
#pragma once

// A pause of Esperar: `vezes` ticks of `intervalo` milliseconds.
struct Pausa {
  float vezes;
  int intervalo;
};

// Her turn in the betting.
inline constexpr Pausa kPausaElaPensa{2, 750};        // before she answers the player's turn
inline constexpr Pausa kPausaDepoisDaAposta{2, 750};  // after she speaks of her stake
inline constexpr Pausa kPausaDaMelodia{1, 1000};      // under the jingle of her bet or cover
inline constexpr Pausa kPausaElaPassa{2, 400};        // after she passes at a round's start
inline constexpr Pausa kPausaAntesDeCobrir{1, 200};   // before she answers his raise at the end
inline constexpr Pausa kPausaApostouTudo{2, 1000};    // after the player goes all in
// The end of a hand.
inline constexpr Pausa kPausaDesistencia{2, 1000};  // a side gives up the table
inline constexpr Pausa kPausaAmbosPassam{3, 1000};  // nobody bets
inline constexpr Pausa kPausaConfronto{4, 1000};    // the hands are shown
inline constexpr Pausa kPausaFimDeJogo{7, 750};     // the last message before the table closes
// The cards.
inline constexpr Pausa kPausaCartaDada{1, 750};        // each card of a hand laid with its sound
inline constexpr Pausa kPausaMaoArrumada{1, 750};      // a hand sorted again after an exchange
inline constexpr Pausa kPausaLugarDoBaralho{1, 40};    // each place of the deck laid out
inline constexpr Pausa kPausaCartaTrocada{1, 1000};    // each card of an exchange
inline constexpr Pausa kPausaTrocaAnunciada{2, 1000};  // after the player says how many he takes
inline constexpr Pausa kPausaCartaVirada{1, 500};      // each of her new cards turned face up

// The clock of the background music (Timer1): its tick, and the ticks each track lasts.
inline constexpr int kIntervaloMusica = 100;
inline constexpr int kTicksDaTrilha[4] = {0, 920, 980, 590};
// The timer that lets a pressed chip button up again.
inline constexpr int kIntervaloTeclaPote = 100;
// The shuffle: the tick of its animation while the cards cross, and at the end of a pass.
inline constexpr int kIntervaloBaralhar = 100;
inline constexpr int kIntervaloFimDoPasso = 50;
