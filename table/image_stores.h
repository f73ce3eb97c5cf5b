// The image stores of the game's forms. A stored picture is named by the path of its artwork under
// the images folder, without extension ("barajas/AC" is images/barajas/AC.png, with
// images/barajas/AC@2x.png for a screen scaled by 2); the screen loads it, the model keeps only
// the name. Keys and tags are those the game's routines ask for.
#pragma once

#include <string>
#include <vector>

#include "platform/forms.h"

// The artwork of each family of pictures.
std::string PictureCarta(const std::string& code);  // "barajas/AC"
std::string PictureFundo(int n);                    // card backs: "fundos/1" .. "fundos/22"
std::string PictureFace(int n);                     // the opponent's faces: "faces/1" .. "faces/27"
inline constexpr const char* kPictureBalao = "balao";
inline constexpr const char* kPictureCreditos = "extras/Creditos";  // the picture of the credits

// Frm_Principal.
// 54: the 52 cards keyed by code, with their sort tag "1".."52" as text, in deck order (AC first,
// 2T last); then "FRENTE" and "DORSO", the first card-back pair of ImageListFundos.
void EncherImageListBarajas(vb::ImageList& store);
// 22 card backs by position, in pairs: the face-down "FRENTE" of a design, then its "DORSO".
void EncherImageListFundos(vb::ImageList& store);
// 124 piles: "F01_00".."F01_30", "F05_..", "F10_..", "F50_..", a pile of nn chips each.
void EncherImageListPotes(vb::ImageList& store);
// 8: "Challenger", an image without a key, "SetaAcima", "SetaAbaixo", "Ficha50", "Ficha10",
// "Ficha5", "Ficha1".
void EncherImageListExtras(vb::ImageList& store);
// 27 faces of the opponent by position.
void EncherImageListFACES(vb::ImageList& store);

// FrmBarajando: the three pictures of the shuffle, by position.
void EncherImageListBarajando(vb::ImageList& store);

// FrmSelFundos: the ten designs of the chooser as pairs by position (20), and the preview store,
// whose last two images are "FRENTE" and "DORSO" (the first design at the start).
void EncherImageListReves(vb::ImageList& store);
void EncherImageListtESTE(vb::ImageList& store);

// Every picture that the stores above hold, the balloon and the credits, each once: what must be at
// hand before the game starts.
std::vector<std::string> PicturesDoJogo();
