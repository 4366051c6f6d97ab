// The library's one logging category. Silent unless a host enables it (for instance with the
// rule "vantora.export.warning=true"): the user hears of failures through message boxes, a host
// or a developer through these lines, one for each file that could not be written.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcVantoraExport)
