// Every call from the desktop into the game goes through Guarded(): a click, a key, a timer tick,
// the start. A run-time error that reaches it is reported the way the old runtime did, in a
// message box, and the program ends with a non-zero status: nothing after the fault runs, no
// unload event, no seed saved. No exception ever unwinds through Qt's own frames.
#pragma once

#include <functional>
#include <string>

namespace front {

// The text of the report: "Erro em tempo de execução '35601':\n\nElemento não encontrado".
std::string FaultText(int number, const std::string& message);

// What happens to a fault. The default shows the message box titled "PokerZEVA" and ends the
// process with status 1; tests install their own to observe it. nullptr restores the default.
using FaultReporter = std::function<void(int number, const std::string& message)>;
void SetFaultReporter(FaultReporter reporter);

// After a fault the game is dead: every later Guarded() call is refused, and no timer fires.
bool Faulted();
void ClearFault();  // for tests, which go on after an observed fault

// Runs `call` unless the game has faulted; returns whether it ran to its end.
bool Guarded(const std::function<void()>& call);

}  // namespace front
