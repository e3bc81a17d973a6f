#include "run/settings.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "run/run_state.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::RunSandbox;

TEST(Settings, FreshStoreReadsAsDefaults) {
  RunSandbox sandbox;
  runState().lasFile = "stale.las";
  runState().writeLog = runState().doWrap = true;
  runState().showDetails = false;
  readSettings();
  EXPECT_EQ(runState().lasFile, "");
  EXPECT_FALSE(runState().writeLog);
  EXPECT_FALSE(runState().doWrap);
  EXPECT_TRUE(runState().showDetails);  // not remembered: on at every start
}

TEST(Settings, OptionTextsReadAsOnOnlyForMinusOne) {
  struct Row {
    const char* stored;
    bool on;
  };
  const Row rows[] = {{"-1", true},  {"0", false},   {"1", false},  {"-1.2", true},
                      {"-1x", true}, {"x-1", false}, {"", false},   {"  -1", true},
                      {"-2", false}, {"1e9", false}, {"-0.6", true}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.stored);
    RunSandbox sandbox;
    sandbox.writeSettings(std::string("[Startup]\nwriteLog=") + row.stored +
                          "\ndoWrap=" + row.stored + "\n");
    readSettings();
    EXPECT_EQ(runState().writeLog, row.on);
    EXPECT_EQ(runState().doWrap, row.on);
  }
}

TEST(Settings, SaveThenReadRoundTrips) {
  RunSandbox sandbox;
  runState().lasFile = "/data/wells/a b=c.las";
  runState().writeLog = true;
  runState().doWrap = false;
  saveSettings();
  EXPECT_EQ(sandbox.settingsText(),
            "[Startup]\nlasFile=/data/wells/a b=c.las\nwriteLog=-1\ndoWrap=0\n");
  resetRunState();
  readSettings();
  EXPECT_EQ(runState().lasFile, "/data/wells/a b=c.las");
  EXPECT_TRUE(runState().writeLog);
  EXPECT_FALSE(runState().doWrap);
}

TEST(Settings, SaveKeepsOtherSectionsAndReplacesOnlyItsKeys) {
  RunSandbox sandbox;
  sandbox.writeSettings("[Window]\ngeometry=1\n\n[startup]\ndoWrap=-1\nextra=7\n\n[Other]\nk=v\n");
  runState().lasFile = "w.las";
  saveSettings();
  EXPECT_EQ(sandbox.settingsText(),
            "[Window]\ngeometry=1\n\n[startup]\ndoWrap=0\nextra=7\nlasFile=w.las\nwriteLog=0\n\n"
            "[Other]\nk=v\n");
}

TEST(Settings, BatchModeNeverSaves) {
  RunSandbox sandbox;
  runState().batchMode = true;
  runState().lasFile = "w.las";
  saveSettings();
  saveLasFileSetting();
  EXPECT_EQ(sandbox.settingsText(), "");
}

TEST(Settings, MalformedOrForeignStoreReadsAsDefaults) {
  const char* stores[] = {"lasFile=a.las\nwriteLog=-1\n",         // no section
                          "[Other]\nlasFile=a.las\ndoWrap=-1\n",  // wrong section
                          "\x01\x02\xff binary junk",             // not text
                          "[Startup\nlasFile=a.las\n"};           // broken section line
  for (const char* store : stores) {
    SCOPED_TRACE(store);
    RunSandbox sandbox;
    sandbox.writeSettings(store);
    readSettings();
    EXPECT_EQ(runState().lasFile, "");
    EXPECT_FALSE(runState().writeLog);
    EXPECT_FALSE(runState().doWrap);
  }
}

TEST(Settings, ReadsCrLfStoresAndKeysInAnyCase) {
  RunSandbox sandbox;
  sandbox.writeSettings("[STARTUP]\r\nLASFILE=/w.las\r\nDoWrap = -1\r\n");
  readSettings();
  EXPECT_EQ(runState().lasFile, "/w.las");
  EXPECT_TRUE(runState().doWrap);
}

TEST(Settings, StoreFallsBackToHomeConfig) {
  RunSandbox sandbox;
  const char* savedHome = std::getenv("HOME");
  std::string home = savedHome ? savedHome : "";
  unsetenv("XDG_CONFIG_HOME");
  setenv("HOME", sandbox.dir().path().c_str(), 1);
  EXPECT_EQ(settingsPath(), sandbox.dir().path() + "/.config/Zorvik/Zorvik.conf");
  runState().lasFile = "h.las";
  saveSettings();  // creates the folders
  resetRunState();
  readSettings();
  EXPECT_EQ(runState().lasFile, "h.las");
  setenv("HOME", home.c_str(), 1);
}

}  // namespace
}  // namespace zorvik
