#include "platform/forms.h"

#include <algorithm>

#include "platform/engine.h"
#include "platform/runtime.h"

namespace vb {

template <class T>
Property<T>& Property<T>::operator=(const T& v) {
  v_ = v;
  owner_->Notify(prop_);
  return *this;
}
template class Property<std::string>;
template class Property<bool>;
template class Property<int>;

TabStop& TabStop::operator=(int v) {
  if (v != v_) owner_->form().tab_order_stale_ = true;
  v_ = v;
  return *this;
}

// --- toolbar buttons -------------------------------------------------------------------------

ToolbarButton::ToolbarButton(Control* toolbar, int index, std::string key)
    : toolbar_(toolbar), index_(index), key_(std::move(key)) {}

void ToolbarButton::SetImage(const std::string& key) {
  position_ = 0;
  if (key == "0" || key.empty()) {
    image_.clear();
  } else {
    // A key that the attached store does not hold names no image.
    if (toolbar_->images && !toolbar_->images->HasKey(key)) Raise(err::kElementNotFound);
    image_ = key;
  }
  toolbar_->Notify(Prop::ButtonImage, index_);
}

void ToolbarButton::SetImage(int position) {
  if (position == 0) return SetImage(std::string());
  if (toolbar_->images) toolbar_->images->Item(position);  // faults when it is not there
  image_.clear();
  position_ = position;
  toolbar_->Notify(Prop::ButtonImage, index_);
}

std::string ToolbarButton::Image() const {
  if (position_) return std::to_string(position_);
  return image_.empty() ? "0" : image_;
}

std::string ToolbarButton::PictureShown() const {
  const ImageList* store = toolbar_->images;
  if (!store) return std::string();
  if (position_) return position_ <= store->Count() ? store->PictureOf(position_) : std::string();
  return store->HasKey(image_) ? store->PictureOf(image_) : std::string();
}

void ToolbarButton::SetEnabled(bool on) {
  enabled_ = on;
  toolbar_->Notify(Prop::ButtonEnabled, index_);
}
void ToolbarButton::SetValue(int value) {
  value_ = value;
  toolbar_->Notify(Prop::ButtonValue, index_);
}
void ToolbarButton::SetTag(const std::string& tag) {
  tag_ = tag;
  toolbar_->Notify(Prop::ButtonTag, index_);
}

// --- controls --------------------------------------------------------------------------------

Control::Control(Form* form, Control* parent, Kind kind, std::string name, int index)
    : form_(form), parent_(parent), kind_(kind), name_(std::move(name)), index_(index) {}

std::string Control::Id() const {
  return index_ < 0 ? name_ : name_ + "(" + std::to_string(index_) + ")";
}

std::string Control::AccessibleName() const {
  return accessible.namer ? accessible.namer(*this) : accessible.name;
}
std::string Control::AccessibleName(const ToolbarButton& button) const {
  return accessible.button_namer ? accessible.button_namer(button) : std::string();
}

void Control::Move(int left, int top, int width, int height) {
  Left = left;
  Top = top;
  Width = width;
  Height = height;
  Notify(Prop::Geometry);
}
void Control::SetLeft(int left) {
  Left = left;
  Notify(Prop::Geometry);
}
void Control::SetTop(int top) {
  Top = top;
  Notify(Prop::Geometry);
}

bool Control::EffectivelyVisible() const {
  for (const Control* c = this; c; c = c->parent_)
    if (!c->Visible) return false;
  return form_->Visible;
}

bool Control::EffectivelyEnabled() const {
  for (const Control* c = this; c; c = c->parent_)
    if (!c->Enabled) return false;
  return form_->Enabled;
}

bool Control::CanTakeFocus() const {
  return TabIndex >= 0 && EffectivelyVisible() && EffectivelyEnabled() && form_->Loaded();
}

void Control::SetFocus() {
  // The runtime refuses the focus to a control that cannot take it.
  if (!CanTakeFocus()) Raise(err::kInvalidCall);
  form_->FocusTo(this);
}

ToolbarButton& Control::Button(int index) {
  if (index < 1 || index > static_cast<int>(buttons_.size())) Raise(err::kIndexOutOfBounds);
  return *buttons_[index - 1];
}

ToolbarButton& Control::Button(const std::string& key) {
  for (auto& b : buttons_)
    if (b->Key() == key) return *b;
  Raise(err::kElementNotFound);
}

ToolbarButton& Control::AddButton(const std::string& key) {
  buttons_.push_back(
      std::make_unique<ToolbarButton>(this, static_cast<int>(buttons_.size()) + 1, key));
  return *buttons_.back();
}

void Control::Notify(Prop prop, int sub) {
  if (kind_ == Kind::Timer && (prop == Prop::Enabled || prop == Prop::Interval)) {
    Engine::Get().TimerChanged(*this, prop);
  }
  if ((prop == Prop::Visible || prop == Prop::Enabled) && form_->active_ &&
      !form_->active_->CanTakeFocus()) {
    form_->FocusLost();
  }
  Engine::Get().Changed(*this, prop, sub);
}

// --- image stores ----------------------------------------------------------------------------

ImageList::ImageList(Form* form, std::string name)
    : Control(form, nullptr, Kind::ImageList, std::move(name), -1) {}

const StoredImage& ImageList::Item(int position) const {
  if (position < 1 || position > Count()) Raise(err::kIndexOutOfBounds);
  return images_[position - 1];
}

const StoredImage* ImageList::Find(std::string_view key) const {
  if (key.empty()) return nullptr;
  if (by_key_stale_) {
    by_key_.clear();
    by_key_.reserve(images_.size());
    for (std::size_t i = 0; i < images_.size(); ++i)
      if (!images_[i].key.empty()) by_key_.emplace(images_[i].key, static_cast<int>(i));
    by_key_stale_ = false;
  }
  auto it = by_key_.find(key);
  return it == by_key_.end() ? nullptr : &images_[static_cast<std::size_t>(it->second)];
}

const StoredImage& ImageList::Item(const std::string& key) const {
  if (const StoredImage* i = Find(key)) return *i;
  Raise(err::kElementNotFound);
}

bool ImageList::HasKey(const std::string& key) const {
  return Find(key) != nullptr;
}

void ImageList::Add(std::string picture, std::string key, std::string tag) {
  images_.push_back({std::move(key), std::move(tag), std::move(picture)});
  by_key_stale_ = true;  // a key given twice names its first image
  Notify(Prop::Images);
}

void ImageList::Remove(int position) {
  Item(position);  // faults when missing
  images_.erase(images_.begin() + (position - 1));
  by_key_stale_ = true;
  Notify(Prop::Images);
}

template <class T>
T& ControlArray<T>::Element(int index) const {
  auto it = items_.find(index);
  if (it == items_.end()) Raise(err::kArrayElement);
  return *it->second;
}
template class ControlArray<Control>;

// --- forms -----------------------------------------------------------------------------------

Form::Form(std::string name) : Control(this, nullptr, Kind::Form, std::move(name), -1) {
  Visible = false;
}

Form::~Form() {
  Engine::Get().Forget(*this);
}

Control& Form::Add(Kind kind, std::string_view name, Control* parent, int index) {
  controls_.push_back(std::make_unique<Control>(this, parent, kind, std::string(name), index));
  Control& c = *controls_.back();
  if (parent) parent->children_.push_back(&c);
  if (kind == Kind::Timer) {
    c.Enabled = false;
    timers_.push_back(&c);
  }
  return c;
}

ImageList& Form::AddImageList(std::string_view name) {
  auto list = std::make_unique<ImageList>(this, std::string(name));
  ImageList& ref = *list;
  controls_.push_back(std::move(list));
  return ref;
}

Control* Form::Find(std::string_view name, int index) const {
  // Controls added since the last look-up join the index; a name and index given twice names the
  // control added last.
  for (; by_name_count_ < controls_.size(); ++by_name_count_) {
    const Control& c = *controls_[by_name_count_];
    by_name_[{c.Name(), c.Index()}] = controls_[by_name_count_].get();
  }
  auto it = by_name_.find({name, index});
  return it == by_name_.end() ? nullptr : it->second;
}

const std::vector<Control*>& Form::TabStops() const {
  if (tab_order_stale_) {
    tab_order_.clear();
    for (const auto& c : controls_)
      if (c->TabIndex >= 0) tab_order_.push_back(c.get());
    std::stable_sort(tab_order_.begin(), tab_order_.end(),
                     [](Control* a, Control* b) { return a->TabIndex < b->TabIndex; });
    tab_order_stale_ = false;
  }
  return tab_order_;
}

void Form::FocusTo(Control* target) {
  if (target == active_) return;
  Control* old = active_;
  active_ = target;
  if (target) Engine::Get().Changed(*target, Prop::Focus, 0);
  // The focus itself moves at once; its LostFocus and GotFocus events wait in the queue and run
  // when the running code hands control back, as the old platform posted them.
  Engine::Get().PostFocusEvents(old, target);
}

void Form::FocusLost() {
  // The next control in tab order that can take the focus, else none.
  const std::vector<Control*>& order = TabStops();
  Control* next = nullptr;
  auto at = std::find(order.begin(), order.end(), active_);
  for (std::size_t step = 1; step <= order.size() && at != order.end(); ++step) {
    Control* c = order[(static_cast<std::size_t>(at - order.begin()) + step) % order.size()];
    if (c != active_ && c->CanTakeFocus()) {
      next = c;
      break;
    }
  }
  FocusTo(next);
}

void Form::SendKeys(const std::string& keys) {
  const bool back = keys == "+{TAB}";
  if (!back && keys != "{TAB}") return;
  const std::vector<Control*>& order = TabStops();
  if (order.empty()) return;
  auto at = std::find(order.begin(), order.end(), active_);
  const std::size_t n = order.size();
  std::size_t pos =
      at == order.end() ? (back ? 0 : n - 1) : static_cast<std::size_t>(at - order.begin());
  for (std::size_t step = 1; step <= n; ++step) {
    Control* c = order[back ? (pos + n * 2 - step) % n : (pos + step) % n];
    if (c->CanTakeFocus()) {
      FocusTo(c);
      return;
    }
  }
}

}  // namespace vb
