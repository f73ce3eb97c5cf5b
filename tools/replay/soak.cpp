#include "soak.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <random>
#include <set>
#include <sstream>
#include <vector>

#include "core/game_state.h"
#include "platform/engine.h"
#include "replay.h"
#include "table/frm_principal.h"

namespace replay {
namespace {

// The moves of Fase the rules allow.
bool FaseAllowed(int from, int to) {
  if (to == 0) return true;
  static const std::set<std::pair<int, int>> kMoves = {
      {0, 10},  {10, 11}, {11, 12}, {12, 13}, {30, 31}, {10, 20}, {11, 20},
      {12, 20}, {13, 20}, {10, 50}, {11, 50}, {12, 50}, {13, 50}, {20, 50},
      {30, 50}, {31, 50}, {20, 30}, {30, 40}, {31, 40}, {40, 50}};
  return kMoves.count({from, to}) > 0;
}

std::vector<std::pair<int, int>>* g_moves = nullptr;
void RecordFase(const std::string& from, const std::string& to) {
  if (g_moves) g_moves->push_back({std::atoi(from.c_str()), std::atoi(to.c_str())});
}

// The count of a pile from its image key ("F05_12" -> 12, "" -> 0).
int PileCount(const std::string& key) {
  if (key.size() < 2) return 0;
  const char a = key[key.size() - 2], b = key[key.size() - 1];
  if (a == '-') return -(b - '0');
  if (a < '0' || a > '9' || b < '0' || b > '9') return 0;
  return (a - '0') * 10 + (b - '0');
}

// A table chip's value from its Tag, as the sweep reads it: 1, 5, 10 or 50, anything else 0.
int ChipValue(const std::string& tag) {
  if (tag == "1") return 1;
  if (tag == "5") return 5;
  if (tag == "10") return 10;
  if (tag == "50") return 50;
  return 0;
}

constexpr int kPileValue[4] = {1, 5, 10, 50};  // button 2, 4, 6, 8

enum Side { kPlayer = 0, kPoker = 1, kPot = 2 };

// Watches the chips the screen shows and the totals the game counts, and names every change of
// either by the rule that made it. Checkpoints are the start of each AtualizarLabels (every
// routine that moves chips calls it when it is done) and the end of each action of the player.
class ChipWatch : public vb::Listener {
 public:
  explicit ChipWatch(SoakReport& report) : r_(report) {}

  std::string action;  // the action being played, as a script line

  void Changed(vb::Control& c, vb::Prop prop, int sub) override {
    if (prop != vb::Prop::Visible && prop != vb::Prop::Tag && prop != vb::Prop::ButtonImage &&
        prop != vb::Prop::ButtonEnabled && prop != vb::Prop::Caption)
      return;
    if (!f_) {
      // The table is complete when it first writes its figures (Form_Initialize).
      if (prop != vb::Prop::Caption || c.Name() != "LabelPokerFichas") return;
      f_ = static_cast<const FrmPrincipal*>(&c.form());
      Resync();
      Checkpoint();
      return;
    }
    if (prop == vb::Prop::Caption) {
      if (&c == &f_->LabelPokerFichas) Checkpoint();
      return;
    }
    if (prop == vb::Prop::ButtonImage || prop == vb::Prop::ButtonEnabled) {
      const int side = &c == &f_->ToolbarPlayerCoins  ? kPlayer
                       : &c == &f_->ToolbarPokerCoins ? kPoker
                                                      : -1;
      if (side < 0 || sub < 2 || sub > 8 || sub % 2) return;
      if (prop == vb::Prop::ButtonEnabled) {
        enabled_last_[side] = c.Button(sub).Enabled() ? sub : 0;
      } else {
        PileWritten(side, sub / 2 - 1, PileCount(c.Button(sub).ImageKey()));
        enabled_last_[side] = 0;
      }
      return;
    }
    const vb::Control* parent = c.parent();
    const int side = parent == &f_->FraPlayerCoins  ? kPlayer
                     : parent == &f_->FraPokerCoins ? kPoker
                     : parent == &f_->FraCoins      ? kPot
                                                    : -1;
    if (side < 0 || c.Index() < 0) return;
    PictureWritten(side, c, prop == vb::Prop::Visible);
  }

  // Where an action ends, or the game does.
  void Checkpoint() {
    if (!f_) return;
    const long long c = Counted(), p = Shown();
    if (started_) Account(c - counted_, p - shown_);
    started_ = true;
    counted_ = c;
    shown_ = p;
    for (int s = 0; s < 2; ++s) {
      stack_drift_[s] = stack_value_[s] - (s == kPlayer ? FichasPlayer : FichasPoker);
      table_drift_[s] = table_value_[s] - (s == kPlayer ? MesaPote : static_cast<int>(MesaApostas));
      ones_change_[s] = false;
      minted_[s] = 0;
      redraw_next_[s] = -1;
      negative_[s] = false;
      placed_[s] = false;
      unswept_[s] = 0;
      swept_[s] = false;
      mesa_[s] = s == kPlayer ? MesaPote : static_cast<int>(MesaApostas);
    }
    pingo_ = MesaPingo;
  }

  int PileOf(int side, int d) const { return piles_[side][d]; }
  bool Ready() const { return f_ != nullptr; }

 private:
  static long long Counted() {
    return static_cast<long long>(FichasPlayer) + FichasPoker + MesaPingo + MesaPote + MesaApostas;
  }
  long long Shown() const {
    return stack_value_[0] + stack_value_[1] + table_value_[0] + table_value_[1] + table_value_[2];
  }

  // Reads the whole table once; from then on every write keeps the picture up to date.
  void Resync() {
    for (int s = 0; s < 2; ++s) {
      const vb::Control& bar = s == kPlayer ? f_->ToolbarPlayerCoins : f_->ToolbarPokerCoins;
      stack_value_[s] = 0;
      for (int d = 0; d < 4; ++d) {
        piles_[s][d] = PileCount(bar.Buttons()[static_cast<std::size_t>(2 * d + 1)]->ImageKey());
        stack_value_[s] += kPileValue[d] * piles_[s][d];
      }
    }
    const vb::ControlArray<>* arrays[3] = {&f_->PicturePlayerCoin, &f_->PicturePokerCoin,
                                           &f_->PictureCoin};
    for (int s = 0; s < 3; ++s) {
      pictures_[s].assign(arrays[s]->items().size(), Picture{});
      table_value_[s] = 0;
      for (const auto& [i, c] : arrays[s]->items()) {
        Picture& pic = pictures_[s][static_cast<std::size_t>(i)];
        pic.visible = c->Visible;
        pic.value = ChipValue(c->Tag.get());
        if (pic.visible) table_value_[s] += pic.value;
      }
    }
  }

  void PileWritten(int side, int d, int count) {
    const int old = piles_[side][d];
    if (debug_)
      trace_ += (side ? " k" : " p") + std::to_string(kPileValue[d]) + ":" + std::to_string(old) +
                ">" + std::to_string(count);
    stack_value_[side] += kPileValue[d] * (count - old);
    piles_[side][d] = count;
    // MoverFichas making change for a missing one: a five or a ten broken into the ones pile
    // (or a fifty into tens, fives and ones), written just after the pile it came from.
    if (d == 0 && old == 0 && (count == 5 || count == 10 || count == 30) && last_pile_[side] > 0 &&
        last_drop_[side])
      ones_change_[side] = true;
    // MoverFichas writes the fifties first, with no Enabled before it (MontarFichas enables the
    // button before it writes). A fifties pile that grows there is a negative stake: the split of
    // a negative amount wants a negative number of fifties.
    if (d == 3 && enabled_last_[side] != 8 && count > old && fase_text() != 0)
      negative_[side] = true;
    // TrocarFichas redraws its stack ones, fives, tens, fifties, one after another, and is the only
    // routine that writes in that order. Its change-making keeps the stack's value, but for the
    // minting of its third step.
    redraw_next_[1 - side] = -1;
    if (d == 0) {
      redraw_from_[side] = stack_value_[side] - (count - old);
      redraw_next_[side] = 1;
    } else if (d == redraw_next_[side]) {
      if (d == 3) {
        minted_[side] += stack_value_[side] - redraw_from_[side];
        redraw_next_[side] = -1;
      } else {
        ++redraw_next_[side];
      }
    } else {
      redraw_next_[side] = -1;
    }
    last_pile_[side] = d;
    last_drop_[side] = count < old || (d == 1 && count == 2);
  }

  void PictureWritten(int side, const vb::Control& c, bool visibility) {
    auto& list = pictures_[side];
    const auto i = static_cast<std::size_t>(c.Index());
    if (i >= list.size()) return;
    Picture& pic = list[i];
    redraw_next_[0] = redraw_next_[1] = -1;
    const bool was_visible = pic.visible;
    const int was_value = was_visible ? pic.value : 0;
    pic.visible = c.Visible;
    pic.value = ChipValue(c.Tag.get());
    table_value_[side] += (pic.visible ? pic.value : 0) - was_value;
    if (visibility && pic.visible && !was_visible && side != kPot) placed_[side] = true;
    if (debug_ && (was_visible != pic.visible || !visibility))
      trace_ += std::string(" ") + "PKC"[side] + std::to_string(i) +
                (visibility ? (pic.visible ? "+" : "-") : "t") + std::to_string(pic.value);
    if (side == kPot || !visibility || pic.visible) return;
    // A picture hidden: by a sweep (MontarFichas, from index 0 up to the first hidden one) or by
    // the walk of MoverFichas with Acumular False, which hides every picture, hidden or not. The
    // walk is known by the hidden pictures it hides again; what it hid that was shown and not
    // swept before is lost.
    if (i == 0) {
      run_value_[side] = 0;
      run_hide_all_[side] = false;
    }
    if (was_visible) {
      run_value_[side] += was_value;
      swept_[side] = true;
    } else {
      run_hide_all_[side] = true;
    }
    if (i + 1 == list.size()) {
      if (run_hide_all_[side]) unswept_[side] += run_value_[side];
      run_value_[side] = 0;
      run_hide_all_[side] = false;
    }
  }

  struct Entry {
    const char* rule;
    long long amount;  // screen minus count
  };

  ChipCause& Rule(const char* name) { return r_.chips[name]; }

  // Chips the screen gained or lost by a rule, ahead of the count.
  void Made(const char* rule, long long amount) {
    if (amount == 0) return;
    rule_here_ = rule;
    ChipCause& cause = Rule(rule);
    ++cause.times;
    cause.on_screen += amount;
    owed_.push_back({rule, amount});
  }

  // The count changing by itself, apart from the screen.
  void Counts(const char* rule, long long amount) {
    if (amount == 0) return;
    ChipCause& cause = Rule(rule);
    ++cause.times;
    cause.in_totals += amount;
    owed_.push_back({rule, -amount});
  }

  // The count catching up with chips the screen gained or lost earlier: taken from what is owed,
  // oldest first, of the same sign. Returns what was not owed.
  long long TakeUp(long long amount) {
    for (auto it = owed_.begin(); amount != 0 && it != owed_.end();) {
      if ((it->amount > 0) != (amount > 0)) {
        ++it;
        continue;
      }
      const long long part =
          amount > 0 ? std::min(amount, it->amount) : std::max(amount, it->amount);
      Rule(it->rule).taken_up += part;
      it->amount -= part;
      amount -= part;
      it = it->amount == 0 ? owed_.erase(it) : it + 1;
    }
    return amount;
  }

  long long Owed() const {
    long long sum = 0;
    for (const Entry& e : owed_) sum += e.amount;
    return sum;
  }

  void Account(long long dc, long long dp) {
    const long long unexplained_before = r_.unexplained_chips;
    AccountRules(dc, dp);
    if (debug_ && r_.unexplained_chips != unexplained_before) {
      std::fprintf(stderr, "unexplained %lld in '%s' at Fase %d: dC %lld dP %lld owed %lld |%s\n",
                   r_.unexplained_chips - unexplained_before, action.c_str(),
                   static_cast<int>(Fase), dc, dp, Owed(), trace_.c_str());
    }
    trace_.clear();
  }

  void AccountRules(long long dc, long long dp) {
    rule_here_ = nullptr;
    const int p = kPlayer, k = kPoker;
    const bool chip = action.rfind("chip ", 0) == 0;
    if (action == "menu nova" || action.rfind("menu nrofichas ", 0) == 0) {
      // A new game, or a new number of chips in the first hand: the table is cleared and both
      // stacks are built again from NroFichas, their totals with them. What the screen owed the
      // totals goes with the old stacks.
      if (dc == 0 && dp == 0) return;
      ChipCause& cause = Rule(chip_rule::kNewStacks);
      ++cause.times;
      cause.on_screen += dp;
      cause.in_totals += dc;
      owed_.clear();
      const long long drift = Shown() - Counted();
      if (drift != 0) {
        r_.unexplained_chips += drift > 0 ? drift : -drift;
        owed_.push_back({"unexplained", drift});
      }
      return;
    }
    // --- what the screen gained or lost, by rule
    long long screen = dp;
    long long count = dc;
    for (int s = 0; s < 2; ++s) {
      if (minted_[s] == 0) continue;
      ChipCause& mint = Rule(chip_rule::kMintShown);
      ++mint.times;
      mint.on_screen += minted_[s];
      mint.in_totals += minted_[s];
      screen -= minted_[s];
      count -= minted_[s];
    }
    if (chip && dc == 0) {
      Made(chip_rule::kPhantom, screen);  // the only routine of a chip, EscolherFicha
      screen = 0;
    }
    const bool folded = MesaPingo - pingo_ > 1 && MesaPote == 0 && MesaApostas == 0 &&
                        (unswept_[p] > 0 || unswept_[k] > 0 || mesa_[p] + mesa_[k] > 0);
    if (folded) {
      Made(chip_rule::kDoublePass, screen);
      screen = 0;
    } else {
      for (int s = 0; s < 2; ++s) {
        Made(chip_rule::kUnswept, -unswept_[s]);
        screen += unswept_[s];
      }
    }
    for (int s = 0; s < 2 && screen < 0; ++s) {
      if (stack_value_[s] == 1980) {
        Made(chip_rule::kFull, screen);
        screen = 0;
      }
    }
    if (screen != 0 && (negative_[p] || negative_[k])) {
      Made(chip_rule::kNegative, screen);
      screen = 0;
    }
    if (ones_change_[p] || ones_change_[k] || placed_[p] || placed_[k]) {
      // Short of ones, MoverFichas shows only the ones the stack had on the table and takes only
      // the shortage from the stack: the table shows fewer chips than its counter and the stack
      // more than its total. The two parts are booked apart, as they are taken up apart: the
      // table's when it is swept, the stack's when it is counted again. They may even cancel out
      // on the screen.
      long long table_short = 0;
      for (int s = 0; s < 2; ++s) {
        if (!(ones_change_[s] || placed_[s]) || swept_[s]) continue;
        const long long mesa = s == p ? MesaPote : static_cast<long long>(MesaApostas);
        const long long moved = table_value_[s] - mesa - table_drift_[s] + unswept_[s];
        if (moved < 0) table_short += moved;
      }
      Made(chip_rule::kOnes, table_short);
      Made(chip_rule::kOnes, screen - table_short);
      screen = 0;
    }
    // Stakes split between the stack and the table may leave the screen's sum as it was while the
    // count takes up the stack's part now and the table's later.
    if (!rule_here_ && (ones_change_[p] || ones_change_[k] || placed_[p] || placed_[k]))
      rule_here_ = chip_rule::kOnes;
    if (screen != 0) {
      r_.unexplained_chips += screen > 0 ? screen : -screen;
      owed_.push_back({"unexplained", screen});
    }
    // --- what the count did: catch up with the screen, or change by itself
    if (count != 0) {
      const bool ante = fase_text() == 0 && !chip;
      const bool desfazer = action.rfind("click CmdDesfazer 0", 0) == 0;
      if (ante) {
        // TrocarFichas(side, False) after the ante: the total becomes the stack as counted, with
        // whatever the change-making minted; the stack keeps its picture.
        const int side = NroMao % 2 == 0 ? k : p;
        const long long missing = TakeUp(stack_drift_[side]);
        Counts(chip_rule::kMintAnte, count - (stack_drift_[side] - missing));
        if (missing != 0) Unexplained(missing);
      } else if (desfazer) {
        // The sweep takes the player's chips back into the stack and counts it again; MesaPote
        // keeps whatever the level taken back did not cover.
        const long long owed_here = stack_drift_[p] + table_drift_[p];
        const long long missing = TakeUp(owed_here);
        Counts(chip_rule::kDesfazer, count - (owed_here - missing));
        if (missing != 0) Unexplained(missing);
      } else {
        // The count takes up what the screen holds. A rule at work here may have split its chips
        // between the stack and the table, of which the count takes up one part now and the
        // other when the table is swept.
        const long long rest = TakeUp(count);
        if (rest != 0 && rule_here_) {
          Counts(rule_here_, rest);
        } else if (rest != 0) {
          Unexplained(rest);
        }
      }
    }
    // The books must agree with the screen.
    const long long drift = Shown() - Counted();
    if (drift != Owed()) {
      const long long gap = drift - Owed();
      r_.unexplained_chips += gap > 0 ? gap : -gap;
      owed_.push_back({"unexplained", gap});
    }
  }

  void Unexplained(long long amount) {
    r_.unexplained_chips += amount > 0 ? amount : -amount;
    owed_.push_back({"unexplained", -amount});
  }

  static int fase_text() { return Fase; }

  struct Picture {
    bool visible = false;
    int value = 0;
  };
  SoakReport& r_;
  const FrmPrincipal* f_ = nullptr;
  bool started_ = false;
  long long counted_ = 0, shown_ = 0;
  int piles_[2][4] = {};
  long long stack_value_[2] = {};
  long long table_value_[3] = {};
  std::array<std::vector<Picture>, 3> pictures_;
  // Facts of the present stretch between checkpoints.
  bool ones_change_[2] = {};
  long long redraw_from_[2] = {};
  int redraw_next_[2] = {-1, -1};
  long long minted_[2] = {};
  bool negative_[2] = {};
  bool placed_[2] = {};
  int enabled_last_[2] = {};
  const char* rule_here_ = nullptr;  // the rule found at work in this stretch
  int last_pile_[2] = {};
  bool last_drop_[2] = {};
  long long unswept_[2] = {};
  long long run_value_[2] = {};
  bool run_hide_all_[2] = {};
  bool swept_[2] = {};
  long long mesa_[2] = {}, pingo_ = 0;
  long long stack_drift_[2] = {}, table_drift_[2] = {};
  std::deque<Entry> owed_;  // chips the screen holds that the count does not, by rule
  bool debug_ = std::getenv("POKERZEVA_SOAK_DEBUG") != nullptr;
  std::string trace_;
};

// The options of a game as the replay tool takes them.
std::string OptionsText(const Options& o) {
  std::string t = "--seed " + std::to_string(o.seed) + " --cards " + std::to_string(o.cards) +
                  " --chips " + std::to_string(o.chips) + " --exchange " +
                  std::to_string(o.exchange);
  if (o.no_limit) t += " --no-limit";
  if (o.full_beats_flush) t += " --full-beats-flush";
  if (o.straight_beats_trips) t += " --straight-beats-trips";
  if (o.effects) t += " --effects";
  if (o.music) t += " --music";
  return t;
}

// POKERZEVA_SOAK_KEEP=DIR keeps each game that the report flags as a replay script, its options
// on the first line as the replay tests read them: DIR/game-N.script.
void Keep(int game, const Options& o, const std::vector<std::string>& lines, const char* why) {
  const char* dir = std::getenv("POKERZEVA_SOAK_KEEP");
  if (!dir) return;
  std::ofstream script(std::string(dir) + "/game-" + std::to_string(game) + ".script");
  script << "# options: " << OptionsText(o) << "\n# " << why << "\n";
  for (const std::string& line : lines) script << line << "\n";
}

}  // namespace

SoakReport RunSoak(int games, std::uint64_t seed, int max_actions_per_game) {
  SoakReport r;
  std::mt19937_64 rng(seed);
  for (int g = 0; g < games; ++g) {
    Options o;
    o.seed = rng();
    static const int kCards[] = {52, 48, 44, 40, 36, 32, 28, 24, 20};
    static const int kChips[] = {990, 660, 330};
    o.cards = kCards[rng() % 9];
    o.chips = kChips[rng() % 3];
    o.exchange = static_cast<int>(rng() % 6);
    o.no_limit = rng() % 2;
    o.full_beats_flush = rng() % 2;
    o.straight_beats_trips = rng() % 2;
    o.effects = rng() % 4 == 0;
    o.music = o.effects && rng() % 2;

    Session s(o, nullptr);
    ChipWatch watch(r);
    vb::Engine::Get().AddListener(&watch);
    std::vector<std::pair<int, int>> moves;
    g_moves = &moves;
    FaseVar::Observe(RecordFase);
    watch.action = "start";
    s.Start();
    std::vector<std::string> lines;
    const long long unexplained_before = r.unexplained_chips;
    const char* flagged = nullptr;
    int line = 0;
    std::string last = "start";
    int last_fase = 0;
    const auto settle = [&] {
      for (auto [from, to] : moves) {
        if (to == 0) ++r.hands;
        if (!FaseAllowed(from, to))
          ++r.fase_errors[std::to_string(from) + "->" + std::to_string(to)];
      }
      moves.clear();
      if (!s.fault() && s.over_how() != "hung") watch.Checkpoint();
    };
    settle();
    while (!s.over() && line < max_actions_per_game) {
      auto actions = s.LegalActions();
      if (actions.empty()) {
        if (Fase == 10 && FichasPlayer == 0) {
          ++r.dead_ends;
        } else if (Fase == 30 && FichasPlayer == 0) {
          // The player has staked all he had and she has nothing to answer in the final round:
          // with no chips he gets no turn, and no routine comes after hers.
          ++r.no_turn_final;
          flagged = "the player without chips at Fase 30: nothing to press";
        } else {
          // The player's turn with nothing of his to press; the example shows the table.
          std::string& example = r.stuck_examples[Fase * 2 + (FichasPlayer == 0 ? 0 : 1)];
          if (example.empty()) {
            example = "player " + std::to_string(FichasPlayer) + ", MesaPote " +
                      std::to_string(MesaPote) + ", opponent " + std::to_string(FichasPoker) +
                      ", MesaApostas " + std::to_string(MesaApostas);
          }
          ++r.stuck["nothing to press at Fase " + std::to_string(Fase) +
                    (FichasPlayer == 0 ? ", the player without chips (e.g. " : " (e.g. ") +
                    example + ")"];
          flagged = "nothing to press";
        }
        break;
      }
      // Between hands the menu is one choice in twenty, else a new game from it would keep games
      // from ending; the menu's lines come first in the list. Leaving the game is rarely taken.
      std::size_t first = 0;
      while (first < actions.size() && actions[first].rfind("menu ", 0) == 0) ++first;
      const bool menu = first == actions.size() || (first > 0 && rng() % 20 == 0);
      std::string a =
          menu ? actions[rng() % first] : actions[first + rng() % (actions.size() - first)];
      if ((a == "click CmdSair 2" || a == "menu sair") && rng() % 20 != 0) a = actions.back();
      last = a;
      last_fase = Fase;
      watch.action = a;
      lines.push_back(a);
      s.Play(a, ++line);
      ++r.actions;
      settle();
      if (s.over()) break;
      watch.action = "wait";
      lines.push_back("wait 100");
      s.Play("wait 100", ++line);
      settle();
    }
    g_moves = nullptr;
    FaseVar::Observe(nullptr);
    r.virtual_seconds += s.now() / 1000.0;
    ++r.games;
    ++r.endings[s.over() ? s.over_how() : "unfinished"];
    if (s.over_how() == "hung") {
      if (last == "click CmdTudo" && last_fase == 13) {
        ++r.hung;
      } else {
        ++r.stuck["hung after '" + last + "' at Fase " + std::to_string(last_fase)];
        flagged = "hung";
      }
    }
    if (r.unexplained_chips != unexplained_before) flagged = "chips no rule explains";
    if (flagged) Keep(g, o, lines, flagged);
    if (s.fault()) {
      ++r.faults[s.fault()];
      std::string where;
      const int side = NroMao % 2 == 0 ? kPoker : kPlayer;
      const long long total = side == kPoker ? FichasPoker : FichasPlayer;
      if (s.fault() == 35601 && Fase == 0 && watch.Ready() && watch.PileOf(side, 0) == 0 &&
          total + 1 > 0) {
        where = "the ante finds no ones in a stack that has chips (\"F01_-1\")";
      } else {
        where = "'" + last + "' at Fase " + std::to_string(last_fase);
      }
      ++r.fault_causes["error " + std::to_string(s.fault()) + ": " + where];
    }
  }
  return r;
}

bool Unexpected(const SoakReport& r) {
  return !r.fase_errors.empty() || !r.stuck.empty() || r.unexplained_chips != 0;
}

std::string Describe(const SoakReport& r) {
  std::ostringstream o;
  o << "games " << r.games << ", hands " << r.hands << ", actions " << r.actions
    << ", virtual time " << r.virtual_seconds << " s\n";
  for (auto& [how, n] : r.endings) o << "  ended by " << how << ": " << n << "\n";
  for (auto& [cause, n] : r.fault_causes) o << "  fault " << cause << ": " << n << "\n";
  o << "  dead ends (no chips at Fase 10, nothing to press): " << r.dead_ends << "\n";
  o << "  hung (CmdTudo at Fase 13): " << r.hung << "\n";
  o << "  no turn in the final round (the player without chips at Fase 30, nothing to press): "
    << r.no_turn_final << "\n";
  for (auto& [what, n] : r.stuck) o << "  UNEXPECTED " << what << ": " << n << "\n";
  for (auto& [m, n] : r.fase_errors)
    o << "  UNEXPECTED Fase moved " << m << ": " << n << " times\n";
  o << "  chips, by rule (times; chips the screen made or lost; chips the totals made by the rule "
       "itself; chips the totals took up later when a stack was counted):\n";
  for (auto& [rule, c] : r.chips) {
    o << "    " << rule << ": " << c.times << " times; screen " << c.on_screen << "; totals "
      << c.in_totals << "; taken up " << c.taken_up << "\n";
  }
  if (r.chips.find(chip_rule::kCap) == r.chips.end()) {
    o << "    " << chip_rule::kCap
      << ": 0 (PilhaDeFichas only ever adds NroFichas at the start and takes the ante)\n";
  }
  o << "  chips no rule explains: " << r.unexplained_chips << "\n";
  return o.str();
}

}  // namespace replay
