// The settings store of the desktop: an INI file per application in the user's configuration
// folder ("~/.config/Trevim/PokerZEVA.ini" for the game's seed), sections and keys as the game
// names them. Every save is written at once and atomically (a new file renamed over the old), so
// a crash or a full disk never leaves half a file. A missing, unreadable or garbled file reads as
// empty values; so does a file that is not a small text (over 64 KB, or bytes that are not text),
// which is never parsed, and is replaced at the next save. A file its owner made read-only, or a
// folder in its place, is left alone.
#pragma once

#include <QByteArray>
#include <QString>
#include <string>

#include "platform/settings.h"

namespace front {

class QtSettingsStore : public vb::SettingsStore {
 public:
  // `folder` empty: the user's configuration folder. Tests give a folder of their own.
  explicit QtSettingsStore(QString folder = QString());

  std::string Get(const std::string& app, const std::string& section,
                  const std::string& key) override;
  void Save(const std::string& app, const std::string& section, const std::string& key,
            const std::string& value) override;

  // The file that holds an application's values.
  QString FileOf(const std::string& app) const;

  // The largest settings file that is read: the game's holds a line or two.
  static constexpr qint64 kLargest = 64 * 1024;

 private:
  QString folder_;
};

// Whether `bytes` can be a settings file of the game's: at most kLargest bytes of UTF-8 text with
// no control characters but tabs and line ends.
bool IsSettingsText(const QByteArray& bytes);

}  // namespace front
