// Every sound of the game, one function each. All return a buffer ready for mastering.
#pragma once

#include "synth.h"

namespace soundgen {

// Table effects (EFEITOS).
Buffer chipRattle();          // chips rebuilt into other denominations
Buffer chipClick(int value);  // one chip of value 1, 5, 10 or 50 put on the table
Buffer cardDealt();           // a card dealt or laid down
Buffer cardTurned();          // a card turned face up
Buffer cardLanded();          // a new card sliding in and landing
Buffer cardMarked();          // a card marked for exchange

// Short tunes (MELODIAS).
Buffer tuneOpens();             // she opens the betting
Buffer tunePasses();            // she passes
Buffer tuneBets();              // she bets or raises
Buffer tunePush();              // the player passes too
Buffer tuneThinking();          // she stops to think
Buffer tuneWins();              // she wins the hand
Buffer tuneLoses();             // she loses the hand
Buffer tuneGoodbye();           // the player leaves
Buffer tuneShuffle(int which);  // 1, 2 or 3: the shuffle, riffles under a little tune
Buffer tuneLight();             // a light chime on each chip count update

// Background music (TRILHAS), exact lengths in seconds.
Buffer trackLounge(int which, double seconds);  // 1, 2 or 3
Buffer trackCredits(double seconds);

}  // namespace soundgen
