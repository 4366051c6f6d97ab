// Named actions of the controls file: the viewer calls them through this.viewer.action(id, ...).
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vantora::params {

// Appends {"id": id, "func": func}. Every writer of the controls file adds its actions this way,
// so the array keeps the order in which the writers run.
inline void appendAction(QJsonArray &actions, const QString &id, const QString &func)
{
    actions.append(QJsonObject {{QStringLiteral("id"), id}, {QStringLiteral("func"), func}});
}

} // namespace vantora::params
