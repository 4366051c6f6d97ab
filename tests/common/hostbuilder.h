// A HostContext for tests, written at the documented offsets into raw bytes rather than through
// the header's struct, so that the library reading it through the struct checks the header too.
#pragma once

#include <vantora/host.h>

#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstring>
#include <list>
#include <memory>
#include <string>
#include <type_traits>

namespace vantora::test {

// Offsets of the HostContext fields the tests use.
namespace at {
constexpr std::size_t DocumentId = 0, HideFovButton = 8, ImageWidth = 12, ImageHeight = 16;
constexpr std::size_t Start = 32, Close = 40, ParentWindow = 168, PreviewCookie = 264,
                      Preview = 288;
constexpr std::size_t UpperEdge = 48, LowerEdge = 56, StartPan = 72, EndPan = 80;
constexpr std::size_t PathBuffer = 184, Hotspots = 208, OutputPath = 216, InstallFolder = 232;
constexpr std::size_t SettingsFolder = 280, ViewPan = 328, ViewTilt = 336, ViewHfov = 344;
constexpr std::size_t ViewMinHfov = 352, ViewMaxHfov = 360, WriteTiles = 368, ExportResource = 376;
constexpr std::size_t UiScale = 384, DialogHook = 392;
constexpr std::size_t FlatImage = 432, PageWidth = 436, PageHeight = 440, FitToPage = 444;
constexpr std::size_t LinearVertical = 448, JpegQuality = 456, NonInteractive = 464;
} // namespace at

class HostBuilder
{
public:
    static constexpr std::size_t Size = 472, Guard = 32, BufferChars = 4096;

    // A zeroed record whose offsets 184 and 216 point at the two buffers below.
    HostBuilder();
    HostBuilder(const HostBuilder &) = delete; // the record points into itself

    HostContext *context() { return reinterpret_cast<HostContext *>(m_bytes); }

    // Writes each value at the offset before it: put(at::PageWidth, 800, at::PageHeight, 600).
    template <class T, class... More> HostBuilder &put(std::size_t offset, T value, More... more)
    {
        static_assert(std::is_trivially_copyable_v<T> && !std::is_same_v<T, std::nullptr_t>);
        std::memcpy(m_bytes + offset, &value, sizeof value);
        if constexpr (sizeof...(more) > 0)
            put(more...);
        return *this;
    }
    template <class T> T get(std::size_t offset) const
    {
        T value;
        std::memcpy(&value, m_bytes + offset, sizeof value);
        return value;
    }
    // Points `offset` at a terminated UTF-16 copy of `text` that the builder keeps.
    HostBuilder &putString(std::size_t offset, const QString &text);
    // Copies `text` into the path buffer and points offset 184 at it again.
    HostBuilder &setPath(const QString &text);

    // The buffers lent at 184 (path) and 216 (output), read up to their terminator.
    QString pathText() const { return QString::fromUtf16(m_path); }
    QString outputText() const { return QString::fromUtf16(m_output); }

    // Fills the bytes that belong to the host (gaps between the fields, and a guard zone behind
    // the record) with `pattern`; later names the first one changed, or is empty.
    void fillHostBytes(unsigned char pattern);
    QString hostBytesChanged(unsigned char pattern) const;

private:
    alignas(8) unsigned char m_bytes[Size + Guard] = {};
    char16_t m_path[BufferChars] = {};
    char16_t m_output[BufferChars] = {};
    std::list<std::u16string> m_strings;
};

// The entry point of the library at `path`, loaded once and never unloaded (it keeps its state
// for the life of the process); null with the reason in `error`.
ExportAppletFn loadExportEntry(const char *path, QString *error);

// A temporary folder holding out/, settings/ and install/VantoraViewer/vantoViewer.js, and a host
// record for a 4000 x 2000 full sphere on an 800 x 600 page that names those folders.
class ExportBench
{
public:
    ExportBench(const QByteArray &viewerScript, std::uint64_t documentId);

    bool isValid() const { return m_valid; }
    HostBuilder &host() { return *m_host; }

    QString root, out, viewerScript; // root ends in '/'

private:
    QTemporaryDir m_root;
    std::unique_ptr<HostBuilder> m_host = std::make_unique<HostBuilder>();
    bool m_valid = false;
};

// What a test of the entry point keeps: the entry, loaded once, and a fresh bench for each case.
class BenchUser
{
protected:
    ExportAppletFn m_entry = nullptr;
    std::unique_ptr<ExportBench> m_bench;
    HostBuilder *m_host = nullptr;
    QString m_out;

    // A new bench with its host record at m_host and its out/ folder at m_out; false when its
    // folders could not be made.
    bool newBench(const QByteArray &viewerScript, std::uint64_t documentId)
    {
        m_bench = std::make_unique<ExportBench>(viewerScript, documentId);
        m_host = &m_bench->host();
        m_out = m_bench->out;
        return m_bench->isValid();
    }
};

} // namespace vantora::test
