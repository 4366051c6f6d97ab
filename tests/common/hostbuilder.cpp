#include "hostbuilder.h"

#include "textcompare.h"

#include <QDir>
#include <QLibrary>

#include <algorithm>
#include <utility>

namespace vantora::test {
namespace {

// The host's own bytes: every range between the documented fields, and the guard behind them.
constexpr std::pair<std::size_t, std::size_t> HOST_BYTES[] = {{20, 32}, {64, 72}, {88, 112},
    {116, 168}, {176, 184}, {192, 208}, {224, 232}, {240, 264}, {272, 280}, {296, 328}, {452, 456},
    {460, 464}, {468, HostBuilder::Size + HostBuilder::Guard}};

} // namespace

HostBuilder::HostBuilder()
{
    put(at::PathBuffer, m_path, at::OutputPath, m_output);
}

HostBuilder &HostBuilder::putString(std::size_t offset, const QString &text)
{
    return put(offset, m_strings.emplace_back(text.toStdU16String()).c_str());
}

HostBuilder &HostBuilder::setPath(const QString &text)
{
    const std::u16string utf16 = text.toStdU16String();
    std::copy(utf16.c_str(), utf16.c_str() + utf16.size() + 1, m_path);
    return put<char16_t *>(at::PathBuffer, m_path);
}

void HostBuilder::fillHostBytes(unsigned char pattern)
{
    for (const auto &[begin, end] : HOST_BYTES)
        std::fill(m_bytes + begin, m_bytes + end, pattern);
}

QString HostBuilder::hostBytesChanged(unsigned char pattern) const
{
    for (const auto &[begin, end] : HOST_BYTES) {
        for (std::size_t offset = begin; offset < end; ++offset) {
            if (m_bytes[offset] != pattern)
                return QStringLiteral("host byte %1 changed to %2")
                    .arg(offset)
                    .arg(m_bytes[offset]);
        }
    }
    return QString();
}

ExportAppletFn loadExportEntry(const char *path, QString *error)
{
    static QLibrary library(QString::fromLocal8Bit(path));
    const auto entry = reinterpret_cast<ExportAppletFn>(library.resolve("export_applet"));
    if (!entry)
        *error = library.errorString();
    return entry;
}

ExportBench::ExportBench(const QByteArray &script, std::uint64_t documentId)
{
    root = m_root.path() + '/';
    out = root + "out/";
    viewerScript = root + "install/VantoraViewer/vantoViewer.js";
    m_valid = m_root.isValid() && QDir().mkpath(out) && QDir().mkpath(root + "settings")
        && QDir().mkpath(root + "install/VantoraViewer") && writeFileBytes(viewerScript, script);
    m_host->put(at::DocumentId, documentId, at::ImageWidth, std::uint32_t(4000), at::ImageHeight,
        std::uint32_t(2000), at::PageWidth, 800, at::PageHeight, 600, at::StartPan, -180.0,
        at::EndPan, 180.0, at::UpperEdge, -90.0, at::LowerEdge, 90.0);
    m_host->putString(at::InstallFolder, root + "install/");
    m_host->putString(at::SettingsFolder, root + "settings/");
}

} // namespace vantora::test
