// Module LEYENDAS: ZEVA's voice. Every line the opponent says, and every line that tells the
// player's acts, comes from the tables of leyendas.cpp. A speech has three texts: who speaks, a
// first line and a second line; the second line carries the chips text (" 7 Fichas").
#pragma once

#include <string>

// The three texts of one speech, in the order of the caption labels: index 0 the speaker,
// index 1 the first line, index 2 the second line with the chips text.
struct Fala {
  std::string Nome;
  std::string Linha1;
  std::string Linha2;
  bool operator==(const Fala&) const = default;
};

// The speech for a key, without touching the screen. Lado True: ZEVA speaks ("Poker (ZEVA)");
// False: the table tells the player's act under MeuNome. A drawn key reseeds the generator with
// Semente and draws one of its lines; a fixed key draws nothing. A key with no entry ("Clean")
// leaves both lines empty, which is how a balloon is wiped; the chips text still follows.
Fala FalaDe(bool Lado, const std::string& Chave, int Fichas);

// Puts the speech of a key into the balloon of that side (LabelPokerCaption(0..2) for ZEVA,
// LabelPlayerCaption(0..2) for the player).
void Leyenda(bool Lado, const std::string& Chave, int Fichas = 0);

// Where Leyenda hands its three texts; null until the table screen installs its writer.
extern void (*g_leyenda_screen)(bool Lado, const Fala& fala);
