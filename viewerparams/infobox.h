// The message box of the viewer (info box, info hotspots) and the message style by design.
#pragma once

#include <QJsonObject>
#include <QString>

namespace vantora::params {

// The message-box object for `design` (TBDesign); outside 0..7 it has no "style" and an empty
// "text".
QJsonObject buildMessageBox(int design, const QString &text, const QString &id);

// The global "messageBoxStyle" of `design`; a null string outside 0..7.
QString messageBoxStyle(int design);

} // namespace vantora::params
