// What a screen reader tells the player of the table, in his words: the cards by rank and suit, a
// card face down as such, a card marked for the exchange as marked, the piles of chips by side,
// her face and balloon by what they are. The frames and lines that only lay the table out, and
// the debugging line of the music clock, are hidden from readers; her speech and the message at
// the end of a hand are announced as they change.
#pragma once

#include <string>
#include <string_view>

#include "platform/forms.h"

struct FrmPrincipal;
struct FrmBarajando;

// "QD" -> "Dama de Ouros", "DC" -> "Dez de Copas"; "" for a code that is not a card.
std::string NomeCarta(std::string_view code);
// What a card place shows: a card's name, "Carta virada" for a back, "" for nothing.
std::string NomeImagemCarta(const std::string& key);
// A pile of a coin toolbar, by side: "ZEVA: 13 fichas de 5", "Você: nenhuma ficha de 50".
std::string NomePilha(bool Poker, const vb::ToolbarButton& button);

// Names every control of the form where it is made.
void NomearControles(FrmPrincipal& f);
void NomearControles(FrmBarajando& f);
