// The three remembered settings: the last LAS file and the write-log and do-wrap options.
//
// They live in an INI file, section [Startup], keys lasFile, writeLog and doWrap, values stored as
// plain text ("-1" on, "0" off, a path). The file is $XDG_CONFIG_HOME/Zorvik/Zorvik.conf, or
// $HOME/.config/Zorvik/Zorvik.conf when XDG_CONFIG_HOME is not set. None of these functions fail:
// a missing, unreadable or malformed store reads as the defaults, and a store that cannot be
// written is left as it was.
#pragma once

#include <string>

namespace zorvik {

struct Session;

// Path of the settings file; "" when neither variable names a home for it.
std::string settingsPath();

// Fills the session's lasFile, writeLog and doWrap from the store, sets showDetails on and puts
// an out-of-range repair choice back to 0. Only "-1" (as a leading number) turns an option on.
void readSettings(Session& session);

// Stores lasFile, writeLog and doWrap (the window does this; batch runs never do).
void saveSettings(const Session& session);

// Stores only the lasFile key (the window does this when a file is opened for certification).
void saveLasFileSetting(const std::string& lasFile);

// One value of section [Startup]; `fallback` when the key or the store is missing.
std::string readSetting(const std::string& key, const std::string& fallback);
// Sets one value of section [Startup], keeping every other line of the store.
void writeSetting(const std::string& key, const std::string& value);

}  // namespace zorvik
