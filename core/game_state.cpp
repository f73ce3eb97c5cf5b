#include "core/game_state.h"

#include "platform/runtime.h"

#define POKERZEVA_DEFINE(type, name, start) type name = start;
POKERZEVA_ALL_STATE(POKERZEVA_DEFINE)
#undef POKERZEVA_DEFINE

namespace {
FaseVar::Observer g_fase_observer = nullptr;
}

FaseVar& FaseVar::operator=(int value) {
  // A fixed two-character text: a one-digit phase is padded with a blank.
  std::string text = vb::LongText(value);
  if (text.size() < 2) text.resize(2, ' ');
  text.resize(2);
  if (g_fase_observer && text != text_) g_fase_observer(text_, text);
  text_ = std::move(text);
  number_ = static_cast<int>(vb::Val(text_));
  return *this;
}

void FaseVar::Observe(Observer observer) {
  g_fase_observer = observer;
}

void ResetGameState() {
#define POKERZEVA_RESET(type, name, start) \
  {                                        \
    type fresh = start;                    \
    name = fresh;                          \
  }
  POKERZEVA_ALL_STATE(POKERZEVA_RESET)
#undef POKERZEVA_RESET
}
