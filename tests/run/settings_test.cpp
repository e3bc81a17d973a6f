#include "run/settings.h"

#include <gtest/gtest.h>

#include "run/session.h"
#include "support/scratch.h"

namespace zorvik {
namespace {

using testing::RunSandbox;

TEST(Settings, ReadIntoTheRunState) {
  struct Row {
    const char* store;  // nullptr: no store at all
    const char* lasFile;
    bool on;  // writeLog and doWrap
  };
  const Row rows[] = {
      {nullptr, "", false},
      {"[Startup]\nlasFile=/w.las\nwriteLog=-1\ndoWrap=-1\n", "/w.las", true},
      {"[Startup]\nwriteLog=1\ndoWrap=1\n", "", false},  // a stored 1 reads as off
      {"[Startup]\nwriteLog=-1.2\ndoWrap=  -1x\n", "", true},
      {"[STARTUP]\r\nLASFILE=/w.las\r\nwritelog = -1\r\nDoWrap=-1\r\n", "/w.las", true},
      {"lasFile=/w.las\nwriteLog=-1\ndoWrap=-1\n", "", false},  // no section
      {"\x01\x02\xff binary junk", "", false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.store ? row.store : "(none)");
    RunSandbox sandbox;
    if (row.store) sandbox.writeSettings(row.store);
    Session session;
    session.lasFile = "stale.las";
    session.showDetails = false;
    readSettings(session);
    EXPECT_EQ(session.lasFile, row.lasFile);
    EXPECT_EQ(session.writeLog, row.on);
    EXPECT_EQ(session.doWrap, row.on);
    EXPECT_TRUE(session.showDetails);  // not remembered: on at every start
  }
}

TEST(Settings, SaveReplacesItsKeysAndKeepsTheRest) {
  RunSandbox sandbox;
  sandbox.writeSettings("[Window]\ngeometry=1\n\n[startup]\ndoWrap=-1\nextra=7\n\n[Other]\nk=v\n");
  Session session;
  session.lasFile = "/data/a b=c.las";
  session.writeLog = true;
  saveSettings(session);
  EXPECT_EQ(sandbox.settingsText(),
            "[Window]\ngeometry=1\n\n[startup]\ndoWrap=0\nextra=7\nlasFile=/data/a b=c.las\n"
            "writeLog=-1\n\n[Other]\nk=v\n");
  Session read;
  readSettings(read);
  EXPECT_EQ(read.lasFile, "/data/a b=c.las");
  EXPECT_TRUE(read.writeLog);
}

}  // namespace
}  // namespace zorvik
