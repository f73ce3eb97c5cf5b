// The shuffle, the deal, the order of a hand and the seed carried from one exit to the next.
#pragma once

// Shuffles the live part of Baralho. Tamanho is the deck size, NroCartas. One reseed with Semente,
// then n = 15 + Rnd x (Tamanho - 15) rounded as a byte conversion rounds (halves to even), and for
// i = 1 to n a partner j drawn the same way is swapped with Baralho(i). Every partner lies between
// 15 and Tamanho, so places 1 to 14 only ever trade with the region from 15 on and never with each
// other; the deck is not reset first, so each shuffle mixes the order the last hand left. It is
// meant to be this uneven.
void Embaralhar(int Tamanho);
// The mixing itself, after the sounds, the animation and her new face: one reseed, then n swaps
// with partners from place 15 on. Deliberately not uniform, and the deck is never reset.
void MisturarBaralho(int Tamanho);

// Deals ten cards from the top of the deck in two blocks of five: with NroMao even (it has already
// been raised by the ante) places 1-5 go to the opponent and 6-10 to the player, with NroMao odd
// the other way round. The cards stay in Baralho; the exchanges draw from place 11 on.
void DarCartas();

// Sorts one hand by the cards' tags, highest rank first and suits C D P T within a rank.
// Lado True sorts CartasPoker, False CartasPlayer.
void OrdenarCartas(bool Lado);

// At exit only: reads the seed kept in the settings ("Trevim", "Ramdomize", "Seed"), replaces it
// by a fresh draw reseeded with it (or by a fixed first value when there is none) and writes it
// back. Nothing reads the setting at start.
void GuardarSemente();
