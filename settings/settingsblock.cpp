#include "settingsblock.h"

#include <QtEndian>

#include <cstring>
#include <iterator>
#include <limits>

namespace vantora::settings {
namespace {

using S = ViewerSettings;

// The integers after the version word, in block order. Each group was appended by a later
// version, so a block of version v holds exactly the rows whose `since` is at most v, packed.
struct IntSlot
{
    int since;
    int S::*number;    // null for a colour or the menu item count
    Colour S::*colour; // null for a number or the menu item count
};

// clang-format off
constexpr IntSlot INT_SLOTS[] = {
    /*  8 */ {1,  nullptr,                         &S::TextColor},
    /* 12 */ {1,  nullptr,                         &S::ShadowColor},
    /* 16 */ {1,  &S::MouseMode,                   nullptr},
    /* 20 */ {1,  &S::TouchMode,                   nullptr},
    /* 24 */ {1,  &S::Position,                    nullptr},
    /* 28 */ {1,  &S::TBDesign,                    nullptr},
    /* 32 */ {1,  &S::Restart,                     nullptr},
    /* 36 */ {3,  nullptr,                         nullptr}, // number of ContextMenuItems
    /* 40 */ {5,  &S::GalleryButtons,              nullptr},
    /* 44 */ {5,  &S::GalleryPosition,             nullptr},
    /* 48 */ {8,  &S::OrientationElement,          nullptr},
    /* 52 */ {8,  &S::OrientationElementPosition,  nullptr},
    /* 56 */ {9,  &S::MapPosition,                 nullptr},
    /* 60 */ {9,  &S::MapType,                     nullptr},
    /* 64 */ {9,  &S::MapZoom,                     nullptr},
    /* 68 */ {11, &S::VrDisplayType,               nullptr},
};

constexpr double S::*RATES[] = {&S::PanRate, &S::TiltRate, &S::ZoomRate};

// One byte each, after the three rates, in index order; `since` never decreases down the table.
struct FlagSlot
{
    int since;
    bool S::*flag;   // null for ZoomMode and the reserved byte
    int S::*number;  // ZoomMode, kept as one byte
};

constexpr FlagSlot FLAG_SLOTS[] = {
    /*  0 */ {1,  &S::AddToolbar,              nullptr},
    /*  1 */ {1,  &S::ShowToolbar,             nullptr},
    /*  2 */ {1,  &S::ShowHotspots,            nullptr},
    /*  3 */ {1,  &S::PlayButton,              nullptr},
    /*  4 */ {1,  &S::ShowToolbarFullscreen,   nullptr},
    /*  5 */ {1,  &S::ShowArrowButtons,        nullptr},
    /*  6 */ {1,  &S::ShowZoomButtons,         nullptr},
    /*  7 */ {1,  &S::AddGyro,                 nullptr},
    /*  8 */ {1,  &S::GyroEnabled,             nullptr},
    /*  9 */ {1,  &S::ShowInfoBox,             nullptr},
    /* 10 */ {1,  &S::AddAudioButton,          nullptr},
    /* 11 */ {1,  &S::AudioAutoplay,           nullptr},
    /* 12 */ {1,  &S::AudioLoop,               nullptr},
    /* 13 */ {1,  &S::ShowWebGLWarning,        nullptr},
    /* 14 */ {1,  &S::AutoPlay,                nullptr},
    /* 15 */ {1,  &S::LittlePlanetIntro,       nullptr},
    /* 16 */ {2,  &S::HotspotsButton,          nullptr},
    /* 17 */ {3,  &S::AddContextMenu,          nullptr},
    /* 18 */ {3,  &S::ContextMenuSpare,        nullptr},
    /* 19 */ {3,  &S::GyroButton,              nullptr},
    /* 20 */ {3,  &S::AddVrMode,               nullptr},
    /* 21 */ {5,  &S::AddGallery,              nullptr},
    /* 22 */ {5,  &S::GalleryThumbnailVisible, nullptr},
    /* 23 */ {6,  &S::InfoGlobal,              nullptr},
    /* 24 */ {6,  &S::AudioGlobal,             nullptr},
    /* 25 */ {7,  nullptr,                     &S::ZoomMode},
    /* 26 */ {8,  &S::AddMap,                  nullptr},
    /* 27 */ {8,  &S::AddOrientation,          nullptr},
    /* 28 */ {8,  &S::PositionNorth,           nullptr},
    /* 29 */ {9,  &S::MapVisible,              nullptr},
    /* 30 */ {9,  &S::MapHideOnMarker,         nullptr},
    /* 31 */ {9,  &S::MapRadar,                nullptr},
    /* 32 */ {9,  &S::MapZoomControls,         nullptr},
    /* 33 */ {9,  &S::MapTypeControls,         nullptr},
    /* 34 */ {10, &S::ExtensionJS,             nullptr},
    /* 35 */ {11, &S::VrGamepadEnabled,        nullptr},
    /* 36 */ {12, nullptr,                     nullptr}, // reserved: written 0, ignored
};

// The strings after the flags, in block order, each present from its `since` version on. Unlike
// the other tables this one is not ordered by version: ShortDescription64 (version 5) sits in front
// of the menu items (version 3).
enum class StringKind { Text, MenuItems, Reserved };
struct StringSlot
{
    int since;
    StringKind kind;
    QString S::*text;
};

constexpr StringSlot STRING_SLOTS[] = {
    {1, StringKind::Text,      &S::Title64},
    {1, StringKind::Text,      &S::LogoFile},
    {1, StringKind::Text,      &S::LogoImage},
    {1, StringKind::Text,      &S::LogoURL},
    {1, StringKind::Text,      &S::Sound},
    {1, StringKind::Text,      &S::SoundFile},
    {1, StringKind::Text,      &S::InfoHTML64},
    {5, StringKind::Text,      &S::ShortDescription64},
    {3, StringKind::MenuItems, nullptr},
    {4, StringKind::Reserved,  nullptr},
    {4, StringKind::Reserved,  nullptr},
    {9, StringKind::Text,      &S::GmAPIKey},
};
// clang-format on

static_assert(std::size(INT_SLOTS) == 16 && std::size(FLAG_SLOTS) == 37);

// Older versions are read by skipping the rows they lack, which only works while each version's
// numbers and flags form a prefix of these tables.
template <typename Slot, std::size_t N> constexpr bool versionsOnlyGrow(const Slot (&table)[N])
{
    for (std::size_t i = 1; i < N; ++i)
        if (table[i].since < table[i - 1].since)
            return false;
    return true;
}
static_assert(versionsOnlyGrow(INT_SLOTS) && versionsOnlyGrow(FLAG_SLOTS));

class BlockWriter
{
public:
    void u32(quint32 value)
    {
        char raw[4];
        qToLittleEndian(value, raw);
        m_bytes.append(raw, 4);
    }
    void f64(double value)
    {
        quint64 bits;
        std::memcpy(&bits, &value, sizeof bits);
        char raw[8];
        qToLittleEndian(bits, raw);
        m_bytes.append(raw, 8);
    }
    void u8(bool value) { m_bytes.append(char(value ? 1 : 0)); }
    void string(const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        u32(quint32(utf8.size()));
        m_bytes.append(utf8);
    }
    QByteArray finish()
    {
        qToLittleEndian(quint32(m_bytes.size()), m_bytes.data());
        return m_bytes;
    }

private:
    QByteArray m_bytes;
};

// Reads forward through a block without ever passing the end its size word gives.
class BlockReader
{
public:
    BlockReader(const unsigned char *block, quint32 size)
        : m_block(block)
        , m_size(size)
    { }
    bool ok() const { return m_ok; }
    quint32 u32() { return take(4) ? qFromLittleEndian<quint32>(m_block + m_position - 4) : 0; }
    qint32 i32() { return qint32(u32()); }
    double f64()
    {
        if (!take(8))
            return 0.0;
        const quint64 bits = qFromLittleEndian<quint64>(m_block + m_position - 8);
        double value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
    bool u8() { return take(1) && m_block[m_position - 1] != 0; }
    QString string()
    {
        const quint32 length = u32();
        if (length > quint32(std::numeric_limits<int>::max()) || !take(length))
            return QString();
        return QString::fromUtf8(
            reinterpret_cast<const char *>(m_block + m_position - length), int(length));
    }
    // A count that cannot be true (below zero) spoils the block like a missing byte does.
    void reject() { m_ok = false; }

private:
    bool take(quint32 count)
    {
        if (!m_ok || count > m_size - m_position) {
            m_ok = false;
            return false;
        }
        m_position += count;
        return true;
    }

    const unsigned char *m_block;
    quint32 m_size;
    quint32 m_position = 0;
    bool m_ok = true;
};

} // namespace

QByteArray encodeSettingsBlock(const ViewerSettings &s)
{
    BlockWriter out;
    out.u32(0); // the total size, filled in by finish()
    out.u32(quint32(SETTINGS_BLOCK_VERSION));
    for (const IntSlot &slot : INT_SLOTS) {
        if (slot.colour)
            out.u32(s.*slot.colour);
        else if (slot.number)
            out.u32(quint32(s.*slot.number));
        else
            out.u32(quint32(s.ContextMenuItems.size()));
    }
    for (double S::*rate : RATES)
        out.f64(s.*rate);
    for (const FlagSlot &slot : FLAG_SLOTS)
        out.u8(slot.flag ? s.*slot.flag : slot.number && s.*slot.number != 0);
    for (const StringSlot &slot : STRING_SLOTS) {
        switch (slot.kind) {
        case StringKind::Text:
            out.string(s.*slot.text);
            break;
        case StringKind::MenuItems:
            for (const ContextMenuItem &item : s.ContextMenuItems) {
                out.u32(quint32(item.kind));
                out.string(item.caption);
                out.string(item.action);
            }
            break;
        case StringKind::Reserved:
            out.string(QString());
            break;
        }
    }
    return out.finish();
}

bool decodeSettingsBlock(const unsigned char *block, ViewerSettings &settings)
{
    if (!block)
        return false;
    BlockReader in(block, qFromLittleEndian<quint32>(block));
    in.u32(); // the size word itself
    const qint32 version = in.i32();
    if (!in.ok() || version < 1 || version > SETTINGS_BLOCK_VERSION)
        return false;

    ViewerSettings s = settings;
    qint32 itemCount = 0;
    for (const IntSlot &slot : INT_SLOTS) {
        if (slot.since > version)
            continue;
        const quint32 value = in.u32();
        if (slot.colour)
            s.*slot.colour = value;
        else if (slot.number)
            s.*slot.number = qint32(value);
        else
            itemCount = qint32(value);
    }
    // Blocks from before the gallery had its position kept it below the toolbar.
    if (version < 5)
        s.GalleryPosition = 1;
    for (double S::*rate : RATES)
        s.*rate = in.f64();
    for (const FlagSlot &slot : FLAG_SLOTS) {
        if (slot.since > version)
            continue;
        const bool value = in.u8();
        if (slot.flag)
            s.*slot.flag = value;
        else if (slot.number)
            s.*slot.number = value ? 1 : 0;
    }
    // Before the gyroscope button had a flag of its own it came with the gyroscope control.
    if (version < 3)
        s.GyroButton = s.AddGyro;

    s.ContextMenuItems.clear();
    if (itemCount < 0)
        in.reject();
    for (const StringSlot &slot : STRING_SLOTS) {
        if (slot.since > version)
            continue;
        switch (slot.kind) {
        case StringKind::Text:
            s.*slot.text = in.string();
            break;
        case StringKind::MenuItems:
            // Each item needs at least 12 bytes, so a lying count ends at the block's end.
            for (qint32 i = 0; i < itemCount && in.ok(); ++i) {
                ContextMenuItem item;
                item.kind = in.i32();
                item.caption = in.string();
                item.action = in.string();
                s.ContextMenuItems.append(item);
            }
            break;
        case StringKind::Reserved:
            in.string();
            break;
        }
    }
    if (!in.ok())
        return false;
    settings = s;
    return true;
}

} // namespace vantora::settings
