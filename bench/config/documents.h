// Documents to measure with, and the same content as other libraries write it.
#pragma once

#include <string>

#include "config/config_map.h"

/// A player's settings file of about 4 KB: choices, game WADs, engines, files.
ConfigMapRef SettingsFile();
/// That many settings in one map, half of them numbers, half texts.
ConfigMapRef Flat(int settings);
/// That many settings in maps of ten, which are in maps of ten, and so on.
ConfigMapRef Nested(int settings);
/// Number of settings and structures.
std::size_t EntriesOf(const ConfigMap& map);

enum class Dialect { Libconfig, Libucl };
std::string TextOf(const ConfigMap& map, Dialect dialect);
