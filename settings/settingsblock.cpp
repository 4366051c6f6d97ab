#include "settingsblock.h"

#include "settingrowdata.h"

#include <QtEndian>

#include <array>
#include <cstring>
#include <iterator>
#include <limits>

namespace vantora::settings {
namespace {

// The block's areas after the version word: integers (colours, numbers and the menu's item
// count), the three rates, one byte per flag, then the strings. Each area is filled from the rows'
// block table; the table no row takes are reserved: written as zero or empty, read and ignored.
constexpr int INT_COUNT = 16;
constexpr int RATE_COUNT = 3;
constexpr int FLAG_COUNT = 37;
constexpr int STRING_COUNT = 12;

struct Reserved
{
    BlockSlot::Area area;
    int index;
    int since;
};
constexpr Reserved RESERVED[] = {
    {BlockSlot::Flag, 36, 12},
    {BlockSlot::String, 9, 4},
    {BlockSlot::String, 10, 4},
};

struct Slot
{
    int row = -1; // into rows::ALL; -1 reserved (or, while building, not yet taken)
    int since = 0;
    bool count = false; // the menu's item count rather than a value of the row's field
};

template <int N> using Area = std::array<Slot, N>;

template <int N> constexpr Area<N> areaOf(BlockSlot::Area area)
{
    Area<N> table {};
    for (int r = 0; r < int(std::size(rows::ALL)); ++r) {
        const BlockSlot &slot = rows::ALL[r].block;
        if (slot.area == area)
            table[slot.index] = {r, slot.since, false};
        if (area == BlockSlot::Int && slot.countIndex >= 0)
            table[slot.countIndex] = {r, slot.since, true};
    }
    for (const Reserved &reserved : RESERVED)
        if (reserved.area == area)
            table[reserved.index] = {-1, reserved.since, false};
    return table;
}

constexpr Area<INT_COUNT> INTS = areaOf<INT_COUNT>(BlockSlot::Int);
constexpr Area<RATE_COUNT> RATES = areaOf<RATE_COUNT>(BlockSlot::Rate);
constexpr Area<FLAG_COUNT> FLAGS = areaOf<FLAG_COUNT>(BlockSlot::Flag);
constexpr Area<STRING_COUNT> STRINGS = areaOf<STRING_COUNT>(BlockSlot::String);

// Every slot taken by one row or reserved, each exactly once.
constexpr bool complete()
{
    int taken[5][STRING_COUNT + FLAG_COUNT] = {};
    for (const SettingRow &row : rows::ALL) {
        if (row.block.area != BlockSlot::None)
            ++taken[row.block.area][row.block.index];
        if (row.block.countIndex >= 0)
            ++taken[BlockSlot::Int][row.block.countIndex];
    }
    for (const Reserved &reserved : RESERVED)
        ++taken[reserved.area][reserved.index];
    const int counts[5] = {0, INT_COUNT, RATE_COUNT, FLAG_COUNT, STRING_COUNT};
    for (int area = 1; area < 5; ++area)
        for (int i = 0; i < STRING_COUNT + FLAG_COUNT; ++i)
            if (taken[area][i] != (i < counts[area] ? 1 : 0))
                return false;
    return true;
}
static_assert(complete(), "every block slot belongs to exactly one setting or is reserved");

// Older versions are read by skipping the table they lack, which only works while each version's
// numbers, rates and flags form a prefix of their areas. The strings are not ordered by version:
// ShortDescription64 (version 5) sits in front of the menu items (version 3).
template <std::size_t N> constexpr bool versionsOnlyGrow(const std::array<Slot, N> &table)
{
    for (std::size_t i = 1; i < N; ++i)
        if (table[i].since < table[i - 1].since)
            return false;
    return true;
}
static_assert(versionsOnlyGrow(INTS) && versionsOnlyGrow(RATES) && versionsOnlyGrow(FLAGS));

// Calls visit(value) with the slot's field of `settings`.
template <typename Settings, typename Visit>
void visitSlot(const Slot &slot, Settings &settings, Visit &&visit)
{
    ContextMenuChoice unused;
    visitValue(rows::ALL[slot.row], settings, unused, visit);
}

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
    for (const Slot &slot : INTS) {
        visitSlot(slot, s, [&](const auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, QList<ContextMenuItem>>)
                out.u32(quint32(value.size()));
            else if constexpr (std::is_same_v<T, int> || std::is_same_v<T, Colour>)
                out.u32(quint32(value));
        });
    }
    for (const Slot &slot : RATES) {
        visitSlot(slot, s, [&](const auto &value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>)
                out.f64(value);
        });
    }
    for (const Slot &slot : FLAGS) {
        if (slot.row < 0) {
            out.u8(false);
            continue;
        }
        // ZoomMode, a number, is kept as one byte too.
        visitSlot(slot, s, [&](const auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, int>)
                out.u8(value != 0);
        });
    }
    for (const Slot &slot : STRINGS) {
        if (slot.row < 0) {
            out.string(QString());
            continue;
        }
        visitSlot(slot, s, [&](const auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, QString>) {
                out.string(value);
            } else if constexpr (std::is_same_v<T, QList<ContextMenuItem>>) {
                for (const ContextMenuItem &item : value) {
                    out.u32(quint32(item.kind));
                    out.string(item.caption);
                    out.string(item.action);
                }
            }
        });
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
    for (const Slot &slot : INTS) {
        if (slot.since > version)
            continue;
        const quint32 word = in.u32();
        if (slot.count) {
            itemCount = qint32(word);
            continue;
        }
        visitSlot(slot, s, [&](auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, int>)
                value = qint32(word);
            else if constexpr (std::is_same_v<T, Colour>)
                value = word;
        });
    }
    // Blocks from before the gallery had its position kept it below the toolbar.
    if (version < 5)
        s.GalleryPosition = 1;
    for (const Slot &slot : RATES) {
        const double rate = in.f64();
        visitSlot(slot, s, [&](auto &value) {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, double>)
                value = rate;
        });
    }
    for (const Slot &slot : FLAGS) {
        if (slot.since > version)
            continue;
        const bool flag = in.u8();
        if (slot.row < 0)
            continue;
        visitSlot(slot, s, [&](auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, bool>)
                value = flag;
            else if constexpr (std::is_same_v<T, int>)
                value = flag ? 1 : 0;
        });
    }
    // Before the gyroscope button had a flag of its own it came with the gyroscope control.
    if (version < 3)
        s.GyroButton = s.AddGyro;

    s.ContextMenuItems.clear();
    if (itemCount < 0)
        in.reject();
    for (const Slot &slot : STRINGS) {
        if (slot.since > version)
            continue;
        if (slot.row < 0) {
            in.string();
            continue;
        }
        visitSlot(slot, s, [&](auto &value) {
            using T = std::decay_t<decltype(value)>;
            if constexpr (std::is_same_v<T, QString>) {
                value = in.string();
            } else if constexpr (std::is_same_v<T, QList<ContextMenuItem>>) {
                // Each item needs at least 12 bytes, so a lying count ends at the block's end.
                for (qint32 i = 0; i < itemCount && in.ok(); ++i) {
                    ContextMenuItem item;
                    item.kind = in.i32();
                    item.caption = in.string();
                    item.action = in.string();
                    value.append(item);
                }
            }
        });
    }
    if (!in.ok())
        return false;
    settings = s;
    return true;
}

} // namespace vantora::settings
