#include "interruption.h"

#include <csignal>

namespace vantora::cli {
namespace {

volatile std::sig_atomic_t requested = 0;

extern "C" void noteRequest(int signal)
{
    requested = signal;
}

} // namespace

void watchInterruptions()
{
    std::signal(SIGINT, noteRequest);
    std::signal(SIGTERM, noteRequest);
}

bool interrupted()
{
    return requested != 0;
}

int interruptionSignal()
{
    return requested;
}

int interruptedStatus()
{
    return 128 + requested;
}

} // namespace vantora::cli
