// The start of the game: builds the forms, loads the main one and deals the first hand. The
// desktop program calls it once, with the event loop, the settings store and the random state in
// place, and then serves events until the game ends the process.
#pragma once

void IniciarJogo();
