// Documents to measure with, and the same content as others write it.
#pragma once

#include <string>

#include "config/config_map.h"

/// A settings file of about 4 KB as a player's has it: choices, game WADs, engines, files.
ConfigMapRef SettingsFile();
/// So many settings in one map; half of them numbers, half texts.
ConfigMapRef Flat(int settings);
/// So many settings in maps of ten, which stand in maps of ten, and so on.
ConfigMapRef Nested(int settings);
/// Number of settings and structures.
std::size_t EntriesOf(const ConfigMap& map);

enum class Dialect { Libconfig, Libucl };
std::string TextOf(const ConfigMap& map, Dialect dialect);
