// The headless game on the virtual clock, played from a generator state and a script of the
// player's actions: the harness of whole-game tests, soaks and bug reports. It prints what a
// player would see and hear, one JSON object a line.
#pragma once

#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace vb {
class Form;
}

namespace replay {

struct Options {
  std::uint64_t seed = 0;
  bool effects = false;
  bool music = false;
  int cards = 0;      // 0: as the game starts
  int chips = 0;      // 0: as the game starts
  int exchange = -1;  // -1: as the game starts
  bool no_limit = false;
  bool full_beats_flush = false;
  bool straight_beats_trips = false;
  // Parses "--seed N", "--effects", ...; returns false with a message on a bad option.
  bool Parse(std::vector<std::string>& args, std::string& error);
};

// One game, run step by step. Output lines go to `out` (may be null for a silent soak).
class Session {
 public:
  Session(const Options& options, std::ostream* out);
  ~Session();
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Starts the game as the desktop does, up to the first moment the player can act.
  void Start();
  // Plays one line of a script (line numbers count from 1). Returns false when it was refused.
  bool Play(const std::string& line, int line_number);
  void PlayScript(std::istream& script);

  bool over() const { return !over_how_.empty(); }
  const std::string& over_how() const { return over_how_; }
  int fault() const { return fault_; }
  std::int64_t now() const;

  // The actions the screen accepts right now, as script lines (for the random player).
  std::vector<std::string> LegalActions() const;

  // One line of output: {"t": ..., "kind": ..., rest}.
  void Emit(const std::string& kind, const std::string& rest);

 private:
  void Run(const std::function<void()>& body, const std::string& last_word);
  // The lines of the right-click menu and the state line.
  bool PlayMenu(const std::string& line, int line_number);
  void EmitState();
  // The scripted player in a dialog: one step each time the dialog waits; false when none is due.
  bool DriveDialog();
  void EmitDialog(const vb::Form& form);
  // The menu lines the random player may choose between hands.
  void MenuActions(std::vector<std::string>& actions) const;
  friend struct Observer;
  Options options_;
  std::ostream* out_;
  std::string over_how_;
  int fault_ = 0;
  struct Impl;
  Impl* impl_;
};

// Escapes a text for JSON, leaving letters beyond ASCII as they are.
std::string Json(const std::string& text);

}  // namespace replay
