#include "core/deck.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

#include "core/cards.h"
#include "core/game_state.h"
#include "platform/engine.h"
#include "platform/rnd.h"
#include "platform/runtime.h"
#include "platform/settings.h"
#include "sound/trilha.h"
#include "table/frm_barajando.h"

namespace {

std::string& DeckPlace(int i) {
  if (i < 1 || i > 52) vb::Raise(vb::err::kSubscript);
  return Baralho[i];
}

// 15 + Rnd x (Tamanho - 15), in double from the float draw, rounded to a byte.
int DrawPlace(int Tamanho) {
  return vb::CByte(15.0 + static_cast<double>(vb::Rnd()) * (Tamanho - 15));
}

// The first value stored when the settings hold no seed yet: the float with this bit pattern,
// 0.6484357714653015.
constexpr std::uint32_t kPrimeiraSementeBits = 1059454947;

}  // namespace

void Embaralhar(int Tamanho) {
  TocarEfeito("BARAJANDO");
  vb::Engine::Get().Show(Frm_Barajando(), true);  // returns when the animation has unloaded
  FecharMelodia("BARAJANDO");
  TrocarFace();
  MisturarBaralho(Tamanho);
}

void MisturarBaralho(int Tamanho) {
  vb::Randomize(Semente);
  const int n = DrawPlace(Tamanho);
  for (int i = 1; i <= n; ++i) {
    const int j = DrawPlace(Tamanho);
    std::swap(DeckPlace(i), DeckPlace(j));
  }
}

void DarCartas() {
  // The side that holds the hand gets the first block.
  const bool poker_first = NroMao % 2 == 0;
  Hand& first = poker_first ? CartasPoker : CartasPlayer;
  Hand& second = poker_first ? CartasPlayer : CartasPoker;
  for (int i = 1; i <= 5; ++i) {
    first[i] = Baralho[i];
    second[i] = Baralho[i + 5];
  }
}

void OrdenarCartas(bool Lado) {
  Hand& cartas = Lado ? CartasPoker : CartasPlayer;
  // The tags are texts compared as numbers ("9" comes before "10"), which is the order of the
  // numbers themselves.
  for (int i = 1; i <= 4; ++i) {
    for (int j = i + 1; j <= 5; ++j) {
      if (CardTag(cartas[j]) < CardTag(cartas[i])) std::swap(cartas[i], cartas[j]);
    }
  }
}

void GuardarSemente() {
  const std::string guardada = vb::GetSetting("Trevim", "Ramdomize", "Seed");
  if (guardada.empty()) {
    Semente = 0;
  } else {
    const double v = vb::Val(guardada);
    if (std::fabs(v) > std::numeric_limits<float>::max()) vb::Raise(vb::err::kOverflow);
    Semente = static_cast<float>(v);
  }
  if (Semente == 0) {
    Semente = std::bit_cast<float>(kPrimeiraSementeBits);
  } else {
    vb::Randomize(Semente);
    Semente = vb::Rnd();
  }
  vb::SaveSetting("Trevim", "Ramdomize", "Seed", vb::SingleText(Semente));
}
