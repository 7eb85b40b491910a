// The JSON library as this folder uses it.
#pragma once

#define JSON_NO_IO 1
#include <nlohmann/json.hpp>

namespace tovarin::store {

using Json = nlohmann::ordered_json;

}  // namespace tovarin::store
