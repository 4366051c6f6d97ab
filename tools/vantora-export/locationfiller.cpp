#include "locationfiller.h"

#include <QByteArray>

namespace vantora::cli {
namespace {

void setNumber(VantoraJsonObject *object, VantoraJsonSetFn setMember, const char *key, double value)
{
    // Seventeen digits: the text reads back as the same double.
    setMember(object, key, QByteArray::number(value, 'g', 17).constData());
}

} // namespace

void fillLocation(const std::optional<Location> &location, VantoraJsonObject *object,
    VantoraJsonSetFn setMember, bool forMap, bool forOrientation)
{
    if (!location || !object || !setMember)
        return;
    if (forMap && location->hasPosition) {
        setNumber(object, setMember, "lat", location->latitude);
        setNumber(object, setMember, "lng", location->longitude);
    }
    if (forOrientation && location->north)
        setNumber(object, setMember, "north", *location->north);
}

} // namespace vantora::cli
