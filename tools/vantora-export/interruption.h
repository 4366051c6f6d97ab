// Ctrl-C and termination requests: noted when they arrive, acted on at the run's next safe point
// (while tiles are cut, or between pages), so that an export never stops half-written.
#pragma once

namespace vantora::cli {

// From here on SIGINT and SIGTERM only set a flag.
void watchInterruptions();

// Whether a request has arrived; the signal's number, 0 when none has.
bool interrupted();
int interruptionSignal();

// The exit status of a run stopped by the request: 128 + the signal's number, as shells report.
int interruptedStatus();

} // namespace vantora::cli
