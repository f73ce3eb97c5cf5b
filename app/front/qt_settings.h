// The settings store of the desktop: an INI file per application in the user's configuration
// folder ("~/.config/Trevim/PokerZEVA.ini" for the game's seed), sections and keys as the game
// names them. Every save is written at once and atomically (a new file renamed over the old), so
// a crash never leaves half a file. A missing, unreadable or garbled file reads as empty values.
#pragma once

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

 private:
  QString folder_;
};

}  // namespace front
