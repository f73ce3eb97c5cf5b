// The form engine, as a model: forms and their controls with the properties and events the game
// uses, keyed image stores, toolbars, timers, focus and the tab order. The game's handlers are
// plain functions hooked to the events. A front (the desktop widgets, or the headless replay)
// watches every change through a Listener and feeds the player's input back with Deliver().
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace vb {

class Control;
class Form;
class ImageList;

enum class Kind {
  Form,
  Frame,
  Label,
  CommandButton,
  TextBox,
  PictureBox,
  Shape,
  Line,
  Timer,
  Menu,
  Toolbar,
  ImageList,
};

// What changed, for listeners. `sub` is the button number for the toolbar's button properties.
enum class Prop {
  Caption,
  Visible,
  Enabled,
  Geometry,
  Picture,
  Tag,
  Text,
  Checked,
  Value,
  Interval,
  Focus,
  ButtonImage,
  ButtonEnabled,
  ButtonValue,
  ButtonTag,
  Images,  // an image store's contents changed
  Loaded,  // a form was loaded or unloaded
};

class Listener {
 public:
  virtual ~Listener() = default;
  virtual void Changed(Control& control, Prop prop, int sub) = 0;
};

// A property of a control: reads like the value, and a write tells the control what changed.
template <class T>
class Property {
 public:
  Property(Control* owner, Prop prop, T value = T{}) : owner_(owner), prop_(prop), v_(value) {}
  Property(const Property&) = delete;
  operator const T&() const { return v_; }  // NOLINT: a property reads as its value
  const T& get() const { return v_; }
  Property& operator=(const T& v);
  Property& operator=(const Property& other) { return *this = other.v_; }
  template <class U>
  bool operator==(const U& u) const {
    return v_ == u;
  }

 private:
  Control* owner_;
  Prop prop_;
  T v_;
};

// A button of a toolbar. Its image value is a key of the toolbar's image store, a position in it,
// or the number 0 for no picture.
class ToolbarButton {
 public:
  ToolbarButton(Control* toolbar, int index, std::string key);
  int Index() const { return index_; }
  const std::string& Key() const { return key_; }

  // The image value: a key, a position as text, or "0" for none.
  std::string Image() const;
  const std::string& ImageKey() const { return image_; }  // "" for none or a position
  int ImagePosition() const { return position_; }         // 0 for none or a key
  void SetImage(const std::string& key);                  // a key of the store, or "0"
  void SetImage(int position);                            // a position of the store, or 0
  // The picture the button shows from its attached store ("" for none).
  std::string PictureShown() const;

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool on);
  int Value() const { return value_; }
  void SetValue(int value);
  const std::string& Tag() const { return tag_; }
  void SetTag(const std::string& tag);

 private:
  Control* toolbar_;
  int index_;
  std::string key_;
  std::string image_;
  int position_ = 0;
  bool enabled_ = true;
  int value_ = 0;
  std::string tag_;
};

// A control's place in the tab order: reads and writes like a number (-1: not a tab stop). A write
// tells the form, which keeps its tab order ready between changes.
class TabStop {
 public:
  explicit TabStop(Control* owner) : owner_(owner) {}
  TabStop(const TabStop&) = delete;
  operator int() const { return v_; }  // NOLINT: reads as its number
  TabStop& operator=(int v);

 private:
  Control* owner_;
  int v_ = -1;
};

// What a screen reader is told of a control. The game names its controls beside them, in the
// player's words: a fixed name, or a namer that reads it from what the control shows now (a card
// by its picture); toolbars name their buttons the same way. Layout that means nothing to a
// player is hidden from readers (a hidden container hands its children to its own container),
// and a live control is announced whenever its text changes.
struct Accessibility {
  std::string name;
  std::string description;
  bool hidden = false;
  bool live = false;
  std::function<std::string(const Control&)> namer;
  std::function<std::string(const ToolbarButton&)> button_namer;
};

struct Font {
  std::string name = "MS Sans Serif";
  double size = 8.25;
  bool bold = false;
};

class Control {
 public:
  Control(Form* form, Control* parent, Kind kind, std::string name, int index);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  Form& form() const { return *form_; }
  Control* parent() const { return parent_; }
  Kind kind() const { return kind_; }
  const std::string& Name() const { return name_; }
  int Index() const { return index_; }  // -1 outside a control array
  std::string Id() const;               // "Name" or "Name(3)"
  const std::vector<Control*>& children() const { return children_; }

  Property<std::string> Caption{this, Prop::Caption};
  Property<bool> Visible{this, Prop::Visible, true};
  Property<bool> Enabled{this, Prop::Enabled, true};
  Property<std::string> Tag{this, Prop::Tag};
  Property<std::string> Picture{this, Prop::Picture};  // an image id, "" for none
  Property<std::string> Text{this, Prop::Text};
  Property<bool> Checked{this, Prop::Checked};
  Property<int> Interval{this, Prop::Interval};
  int Left = 0, Top = 0, Width = 0, Height = 0;  // twips
  void Move(int left, int top, int width, int height);
  void SetLeft(int left);
  void SetTop(int top);

  std::uint32_t BackColor = 0xFFFFFF;  // 0xRRGGBB
  std::uint32_t ForeColor = 0x000000;
  bool HasBackColor = false;
  Font font;
  TabStop TabIndex{this};  // a tab stop when >= 0
  int BorderWidth = 1;
  Accessibility accessible;
  // The name a reader says now: the namer's, else the fixed name ("" when the game gave none).
  std::string AccessibleName() const;
  std::string AccessibleName(const ToolbarButton& button) const;

  // The form engine's reach from a control.
  void SetFocus();
  bool EffectivelyVisible() const;
  bool EffectivelyEnabled() const;
  bool CanTakeFocus() const;

  // Events. A handler left empty means the event does nothing.
  std::function<void()> Click;
  std::function<void(int& key_ascii)> KeyPress;
  std::function<void(int key_code, int shift)> KeyDown;
  std::function<void()> GotFocus;
  std::function<void()> LostFocus;
  std::function<void(int button, int shift)> MouseDown;
  std::function<void()> TimerEvent;                        // a timer's tick
  std::function<void(ToolbarButton& button)> ButtonClick;  // a toolbar button

  // Toolbars: buttons numbered from 1, and the image store they draw from.
  std::vector<std::unique_ptr<ToolbarButton>>& Buttons() { return buttons_; }
  const std::vector<std::unique_ptr<ToolbarButton>>& Buttons() const { return buttons_; }
  ToolbarButton& Button(int index);
  ToolbarButton& Button(const std::string& key);
  ToolbarButton& AddButton(const std::string& key = "");
  ImageList* images = nullptr;

  // Timers: the order among ticks due at the same moment, and when the next one is due.
  int timer_order = 0;
  std::int64_t timer_due = -1;  // -1: not running
  bool timer_busy = false;

  void Notify(Prop prop, int sub = 0);

 protected:
  friend class Form;
  Form* form_;
  Control* parent_;
  Kind kind_;
  std::string name_;
  int index_;
  std::vector<Control*> children_;
  std::vector<std::unique_ptr<ToolbarButton>> buttons_;
};

// An image in a store: its key, its tag, and the picture it shows (an id the front resolves to
// an asset; tests only compare ids).
struct StoredImage {
  std::string key;
  std::string tag;
  std::string picture;
};

// A keyed image store. Positions count from 1.
class ImageList : public Control {
 public:
  ImageList(Form* form, std::string name);
  int Count() const { return static_cast<int>(images_.size()); }
  const StoredImage& Item(int position) const;            // missing position: run-time error
  const StoredImage& Item(const std::string& key) const;  // missing key: run-time error 35601
  bool HasKey(const std::string& key) const;
  std::string PictureOf(int position) const { return Item(position).picture; }
  std::string PictureOf(const std::string& key) const { return Item(key).picture; }
  void Add(std::string picture, std::string key = "", std::string tag = "");
  void Remove(int position);
  const std::vector<StoredImage>& images() const { return images_; }

 private:
  const StoredImage* Find(std::string_view key) const;
  std::vector<StoredImage> images_;
  // Key -> position of its first image, from 0; made again on the first look-up after a change.
  mutable std::unordered_map<std::string_view, int> by_key_;
  mutable bool by_key_stale_ = false;
};

// Elements of a control array by their Index; a missing one is run-time error 340.
template <class T = Control>
class ControlArray {
 public:
  T& operator()(int index) const {
    if (index >= 0 && static_cast<std::size_t>(index) < dense_.size() && dense_[index])
      return *dense_[static_cast<std::size_t>(index)];
    return Element(index);
  }
  int Count() const { return static_cast<int>(items_.size()); }
  int UBound() const { return items_.empty() ? -1 : items_.rbegin()->first; }
  void Set(int index, T* control) {
    items_[index] = control;
    if (index >= 0 && index < kDense) {
      if (static_cast<std::size_t>(index) >= dense_.size()) dense_.resize(index + 1, nullptr);
      dense_[static_cast<std::size_t>(index)] = control;
    }
  }
  const std::map<int, T*>& items() const { return items_; }

 private:
  static constexpr int kDense = 1024;  // indices below this are also kept by position
  T& Element(int index) const;
  std::map<int, T*> items_;
  std::vector<T*> dense_;
};

class Form : public Control {
 public:
  explicit Form(std::string name);
  ~Form() override;

  // Controls are created inside the form and live as long as it does.
  Control& Add(Kind kind, std::string_view name, Control* parent = nullptr, int index = -1);
  ImageList& AddImageList(std::string_view name);
  Control* Find(std::string_view name, int index = -1) const;
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  const std::vector<Control*>& timers() const { return timers_; }

  std::function<void()> Load;
  std::function<void()> Activate;  // the form became the active window on being shown
  std::function<void(int& cancel)> Unload;

  bool Loaded() const { return loaded_; }
  bool modal = false;
  // The close box of this window ends the game (the only window on screen during the first
  // shuffle: a player who closes it means to quit).
  bool close_ends_game = false;
  bool is_main = false;

  Control* ActiveControl() const { return active_; }
  // Moves the focus, firing LostFocus and GotFocus. The target must be able to take it.
  void FocusTo(Control* target);
  // The keystrokes "{TAB}" and "+{TAB}".
  void SendKeys(const std::string& keys);
  // The focused control was disabled or hidden: the focus moves on by itself.
  void FocusLost();
  std::vector<Control*> TabOrder() const { return TabStops(); }

 private:
  friend class Engine;
  friend class Control;
  friend class TabStop;
  // The tab order, kept until a TabIndex changes.
  const std::vector<Control*>& TabStops() const;
  struct NameHash {
    std::size_t operator()(const std::pair<std::string_view, int>& k) const {
      return std::hash<std::string_view>()(k.first) ^
             (static_cast<std::size_t>(k.second) * 0x9E3779B97F4A7C15ull);
    }
  };
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<Control*> timers_;
  // By name and index, made on the first look-up after controls were added. The names are the
  // controls' own, which live as long as the form.
  mutable std::unordered_map<std::pair<std::string_view, int>, Control*, NameHash> by_name_;
  mutable std::size_t by_name_count_ = 0;  // controls in by_name_ so far
  mutable std::vector<Control*> tab_order_;
  mutable bool tab_order_stale_ = true;
  Control* active_ = nullptr;
  bool loaded_ = false;
};

}  // namespace vb
