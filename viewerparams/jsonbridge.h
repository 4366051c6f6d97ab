// The JSON objects the host may fill (panorama node, location) behind the C contract.
#pragma once

#include <vantora/host.h>

#include <QJsonObject>

struct VantoraJsonObject
{
    QJsonObject object;
};

namespace vantora::params {

// The VantoraJsonSetFn handed to the host: parses `jsonValue` as exactly one JSON value.
int setJsonMember(VantoraJsonObject *object, const char *key, const char *jsonValue);

} // namespace vantora::params
