#include "translation.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// Q_INIT_RESOURCE must be used outside any namespace.
static void registerTranslations()
{
    Q_INIT_RESOURCE(vantora_translations);
}

namespace vantora::plugin {
namespace {

// Lives as long as the library: its destructor takes it out of the application when the host
// unloads the library, so the application never calls into unloaded code.
QTranslator &englishTranslator()
{
    static QTranslator translator;
    static const bool loaded = (registerTranslations(),
        translator.load(QStringLiteral(":/vantora/translations/vantora_en.qm")));
    Q_UNUSED(loaded)
    return translator;
}

} // namespace

void followHostLanguage()
{
    if (!QCoreApplication::instance())
        return;
    // Installing prepends without checking for the same translator: remove it first, always.
    QCoreApplication::removeTranslator(&englishTranslator());
    if (QLocale().language() == QLocale::English)
        QCoreApplication::installTranslator(&englishTranslator());
}

} // namespace vantora::plugin
