#include "front/menus.h"

#include <QAction>
#include <QCursor>
#include <QMenu>
#include <QString>

#include "front/guard.h"
#include "platform/engine.h"

namespace front {
namespace {

std::optional<QPoint> g_place;

void Fill(QMenu& qmenu, vb::Control& menu, vb::Control*& chosen) {
  for (vb::Control* entry : menu.children()) {
    if (entry->kind() != vb::Kind::Menu || !entry->Visible) continue;
    if (entry->Caption.get() == "-") {
      qmenu.addSeparator();
      continue;
    }
    const QString text = QString::fromStdString(entry->Caption);
    bool has_entries = false;
    for (vb::Control* c : entry->children()) has_entries |= c->kind() == vb::Kind::Menu;
    if (has_entries) {
      QMenu* sub = qmenu.addMenu(text);
      sub->setEnabled(entry->Enabled);
      Fill(*sub, *entry, chosen);
      continue;
    }
    QAction* action = qmenu.addAction(text);
    action->setEnabled(entry->Enabled);
    if (entry->Checked) {
      action->setCheckable(true);
      action->setChecked(true);
    }
    QObject::connect(action, &QAction::triggered, [&chosen, entry] { chosen = entry; });
  }
}

}  // namespace

void ShowPopupMenu(vb::Control& menu) {
  QMenu qmenu;
  vb::Control* chosen = nullptr;
  Fill(qmenu, menu, chosen);
  if (qmenu.isEmpty()) return;
  const QPoint at = g_place.value_or(QCursor::pos());
  // From the keyboard the first entry is ready to be walked with the arrows.
  if (g_place && !qmenu.actions().isEmpty()) qmenu.setActiveAction(qmenu.actions().first());
  qmenu.exec(at);
  if (!chosen) return;
  vb::Input in;
  in.type = vb::Input::Type::Menu;
  in.form = &chosen->form();
  in.control = chosen->Name();
  in.index = chosen->Index();
  Guarded([&] { vb::Engine::Get().Deliver(in); });
}

void SetPopupPlace(std::optional<QPoint> global) {
  g_place = global;
}

}  // namespace front
