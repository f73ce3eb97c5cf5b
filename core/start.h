// The start of the game: builds the forms, loads the main one and deals the first hand. The
// desktop program calls it once, with the event loop, the settings store and the random state in
// place, and then serves events until the game ends the process.
#pragma once

#include <cstdint>

void IniciarJogo();

// Hooks for the headless replay: settings applied at the end of ValoresIniciais, as the menu
// would, and a look at each speech once it is on the labels.
extern void (*g_ajustes_iniciais)();
extern void (*g_depois_da_fala)(bool Lado);

// Everything a process holds, put back as a fresh process has it: the form engine and the forms,
// the shared variables, every hook and observer above, the random generator (at `seed`), the
// settings store and the media door. Tests and the replay start each game here.
void ResetProcess(std::uint64_t seed = 0);
