// The hands on their toolbars, the deck on its own, and the cards' keyboard and focus events.
#pragma once

void MostrarCartas(bool Lado, bool Mostrar, bool Som, bool Limpar);
void MostrarBaralho(bool Mostrar, bool Limpar);
void PicCartasPlayer_Click(int Index);
void PicCartasPlayer_KeyPress(int Index, int& KeyAscii);
void PicCartasPlayer_KeyDown(int Index, int KeyCode, int Shift);
void PicCartasPlayer_GotFocus(int Index);
void PicCartasPlayer_LostFocus(int Index);
void ToolbarPlayer_ButtonClick(int Index);
