// The chips: each side's stack in four denominations, held only in the image keys of its coin
// toolbar; the stakes on the table, one picture a chip; the centre pot and every figure.
#pragma once

#include <array>
#include <string>

#include "platform/forms.h"

// One denomination of chip, and where it lives on the screen.
struct Denominacao {
  int valor;            // 1, 5, 10, 50
  const char* prefixo;  // image key prefix in the pile store: "F01_"
  const char* chave;    // key of its coin button: "F01"
  int botao;            // number of its coin button: 2, 4, 6, 8
  int pic;              // index of its chip place PicFichasPlayer: 0..3
  const char* ficha;    // picture of a table chip in ImageListExtras
  const char* efeito;   // the click of one chip
};

inline constexpr Denominacao kDenominacoes[4] = {
    {1, "F01_", "F01", 2, 0, "Ficha1", "FICHAS_1"},
    {5, "F05_", "F05", 4, 1, "Ficha5", "FICHAS_5"},
    {10, "F10_", "F10", 6, 2, "Ficha10", "FICHAS_10"},
    {50, "F50_", "F50", 8, 3, "Ficha50", "FICHAS_50"},
};
inline constexpr const Denominacao& kUm = kDenominacoes[0];
inline constexpr const Denominacao& kCinco = kDenominacoes[1];
inline constexpr const Denominacao& kDez = kDenominacoes[2];
inline constexpr const Denominacao& kCinquenta = kDenominacoes[3];

// The count of a pile: the two right characters of the button's image value ("0": none).
int ContagemPilha(const vb::ToolbarButton& button);
// The pile of `count` chips of a denomination: prefix + the two right characters of "00" and the
// count. A count outside 0 to 30 names no image, and the write faults.
std::string ChavePilha(const Denominacao& d, int count);

// A count of chips by denomination: ones, fives, tens, fifties.
using Contagem = std::array<int, 4>;
// An amount as chips, split greedily from the fifties down; below zero each count takes the
// floor, as the runtime's Int does.
Contagem Repartir(int quantia);
// Lays the chips of a count on a heap of table pictures from place `desde`, ones first, each
// with its picture, its value in Tag and its click.
void PorNaMesa(vb::ControlArray<>& heap, int desde, const Contagem& contagem);

// Stacks.
void PilhaDeFichas(bool Poker, int Quantidade);
void TrocarFichas(bool Poker, bool Mostrar);
void MontarFichas(bool Poker, bool Tudo);

// Stakes to the table.
void MoverFichas(bool Poker, int Quantidade, bool Acumular);

// The centre pot, the figures and the arrow of the hand.
void FichasNaMesa();
void AtualizarLabels();
void MostrarSeta(bool PokerTemMao);

// The player's hand on the chips, one at a time.
void EscolherFicha(int Index);
bool FaseDeApostas();
void ToolbarPlayerCoins_ButtonClick(vb::ToolbarButton& Button);
void PicFichasPlayer_Click(int Index);
void LabelPlayerFichasPOT_Click(int Index);
void PicFichasPlayer_KeyPress(int Index, int& KeyAscii);
void PicFichasPlayer_KeyDown(int Index, int KeyCode, int Shift);
void PicFichasPlayer_GotFocus(int Index);
void PicFichasPlayer_LostFocus(int Index);
void TimerKeyPot_Timer();
