#include "table/image_stores.h"

#include <algorithm>
#include <functional>

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

namespace {

// Each store's contents are told once, image by image, to whoever fills or checks it.
using Guardar = std::function<void(std::string picture, std::string key, std::string tag)>;

void Barajas(const Guardar& guardar) {
  for (const CardInfo& carta : kCartas) {
    const std::string code(carta.code);
    guardar(PictureCarta(code), code, carta.TagText());
  }
  guardar(PictureFundo(1), "FRENTE", "");
  guardar(PictureFundo(2), "DORSO", "");
}

void Fundos(const Guardar& guardar) {
  for (int n = 1; n <= 22; ++n) guardar(PictureFundo(n), "", "");
}

void Potes(const Guardar& guardar) {
  for (const char* valor : {"F01", "F05", "F10", "F50"}) {
    for (int n = 0; n <= 30; ++n) {
      const std::string key = std::string(valor) + (n < 10 ? "_0" : "_") + std::to_string(n);
      guardar("potes/" + key, key, "");
    }
  }
}

void Extras(const Guardar& guardar) {
  guardar("extras/Challenger", "Challenger", "");
  guardar("extras/Extra2", "", "");  // the one image without a key, in second place
  for (const char* key : {"SetaAcima", "SetaAbaixo", "Ficha50", "Ficha10", "Ficha5", "Ficha1"})
    guardar(std::string("extras/") + key, key, "");
}

void Faces(const Guardar& guardar) {
  for (int n = 1; n <= 27; ++n) guardar(PictureFace(n), "", "");
}

void Barajando(const Guardar& guardar) {
  for (int n = 1; n <= 3; ++n) guardar("barajando/" + std::to_string(n), "", "");
}

void Reves(const Guardar& guardar) {
  for (int n = 1; n <= 20; ++n) guardar(PictureFundo(n), "", "");
}

void TESTE(const Guardar& guardar) {
  guardar(PictureFundo(1), "FRENTE", "");
  guardar(PictureFundo(2), "DORSO", "");
}

Guardar Em(vb::ImageList& store) {
  return [&store](std::string picture, std::string key, std::string tag) {
    store.Add(std::move(picture), std::move(key), std::move(tag));
  };
}

}  // namespace

void EncherImageListBarajas(vb::ImageList& store) {
  Barajas(Em(store));
}
void EncherImageListFundos(vb::ImageList& store) {
  Fundos(Em(store));
}
void EncherImageListPotes(vb::ImageList& store) {
  Potes(Em(store));
}
void EncherImageListExtras(vb::ImageList& store) {
  Extras(Em(store));
}
void EncherImageListFACES(vb::ImageList& store) {
  Faces(Em(store));
}
void EncherImageListBarajando(vb::ImageList& store) {
  Barajando(Em(store));
}
void EncherImageListReves(vb::ImageList& store) {
  Reves(Em(store));
}
void EncherImageListtESTE(vb::ImageList& store) {
  TESTE(Em(store));
}

std::vector<std::string> PicturesDoJogo() {
  std::vector<std::string> pictures{kPictureBalao, kPictureCreditos};
  const Guardar anotar = [&pictures](std::string picture, std::string, std::string) {
    if (std::find(pictures.begin(), pictures.end(), picture) == pictures.end())
      pictures.push_back(std::move(picture));
  };
  for (void (*loja)(const Guardar&) :
       {Barajas, Fundos, Potes, Extras, Faces, Barajando, Reves, TESTE})
    loja(anotar);
  return pictures;
}
