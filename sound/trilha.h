// The track under the game and the jingles over it: the steps every part of the table takes to
// pause the music for a jingle, to close a jingle and resume the track, and to end the music.
#pragma once

// The track pauses and a jingle plays.
void TocarEfeito(const char* nome);
// The jingle closes and the track plays on.
void FecharMelodia(const char* nome);
// A jingle plays and the track plays on under it.
void TocarMelodia(const char* nome);
// The track plays again.
void RetomarMusica();
// The music clock stops and every track closes.
void PararMusica();
// The music stops for good and a closing jingle plays.
void TocarFim(const char* nome);
