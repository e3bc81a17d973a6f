// The certification run of the window: the same steps as the batch run, with progress, questions
// and results shown through the window's WindowOps (runs without one show nothing).
#pragma once

namespace zorvik {

struct RunContext;
struct Session;
class WindowOps;

// Certifies session.lasFile into a fresh `run` (the window keeps it for its grid, print and copy),
// fills the result grid and, with the write-log option on, writes the log file beside the LAS
// file. Never throws.
void runInteractive(Session& session, RunContext& run, WindowOps* window);

// What the window does when a file is opened for certification: the log file name is the LAS
// file's with extension "log", a stale log file of that name is deleted, the LAS file name is
// remembered in the settings, and the interactive run follows. Never throws.
void doCertifyWork(Session& session, RunContext& run, WindowOps* window);

}  // namespace zorvik
