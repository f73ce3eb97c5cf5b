#include "table/image_stores.h"

#include <array>

#include "core/cards.h"

std::string PictureCarta(const std::string& code) {
  return "barajas/" + code;
}
std::string PictureFundo(int n) {
  return "fundos/" + std::to_string(n);
}
std::string PictureFace(int n) {
  return "faces/" + std::to_string(n);
}

void EncherImageListBarajas(vb::ImageList& store) {
  for (const CardInfo& carta : kCartas) {
    const std::string code(carta.code);
    store.Add(PictureCarta(code), code, carta.TagText());
  }
  store.Add(PictureFundo(1), "FRENTE");
  store.Add(PictureFundo(2), "DORSO");
}

void EncherImageListFundos(vb::ImageList& store) {
  for (int n = 1; n <= 22; ++n) store.Add(PictureFundo(n));
}

void EncherImageListPotes(vb::ImageList& store) {
  for (const char* valor : {"F01", "F05", "F10", "F50"}) {
    for (int n = 0; n <= 30; ++n) {
      const std::string key = std::string(valor) + (n < 10 ? "_0" : "_") + std::to_string(n);
      store.Add("potes/" + key, key);
    }
  }
}

void EncherImageListExtras(vb::ImageList& store) {
  store.Add("extras/Challenger", "Challenger");
  store.Add("extras/Extra2");  // the one image without a key, in second place
  for (const char* key : {"SetaAcima", "SetaAbaixo", "Ficha50", "Ficha10", "Ficha5", "Ficha1"})
    store.Add(std::string("extras/") + key, key);
}

void EncherImageListFACES(vb::ImageList& store) {
  for (int n = 1; n <= 27; ++n) store.Add(PictureFace(n));
}

void EncherImageListBarajando(vb::ImageList& store) {
  for (int n = 1; n <= 3; ++n) store.Add("barajando/" + std::to_string(n));
}

void EncherImageListReves(vb::ImageList& store) {
  for (int n = 1; n <= 20; ++n) store.Add(PictureFundo(n));
}

void EncherImageListtESTE(vb::ImageList& store) {
  store.Add(PictureFundo(1), "FRENTE");
  store.Add(PictureFundo(2), "DORSO");
}
