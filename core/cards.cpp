#include "core/cards.h"

#include "core/game_state.h"
#include "platform/runtime.h"

namespace {

// The table is the one source of the card order; make sure it reads as the order it claims.
constexpr bool TableIsInOrder() {
  constexpr std::string_view ranks = "AKQJD98765432";
  constexpr std::string_view suits = "CDPT";
  for (int i = 0; i < 52; ++i) {
    const CardInfo& c = kCartas[i];
    if (c.tag != i + 1 || c.code.size() != 2) return false;
    if (c.code[0] != ranks[i / 4] || c.code[1] != suits[i % 4]) return false;
  }
  return true;
}
static_assert(TableIsInOrder(),
              "the card table must run AC, AD, AP, AT, KC ... 2T with tags 1..52");

}  // namespace

std::string CardInfo::TagText() const {
  return vb::LongText(tag);
}

int CardTag(std::string_view code) {
  for (const CardInfo& c : kCartas)
    if (c.code == code) return c.tag;
  vb::Raise(vb::err::kElementNotFound);
}

std::string CardTagText(std::string_view code) {
  return vb::LongText(CardTag(code));
}

void EncherBaralho() {
  const int n = NroCartas;
  for (int i = 1; i <= n; ++i) {
    // The picture store has more images than cards, but the deck has only 52 places.
    if (i > 52) vb::Raise(vb::err::kSubscript);
    Baralho[i] = kCartas[i - 1].code;
  }
}
