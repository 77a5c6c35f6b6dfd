#include "config/config_value.h"

#include <type_traits>

#include "config/number.h"

bool ConfigValue::IsNumber() const {
    return std::visit(
        [](const auto& held) {
            using Kind = std::decay_t<decltype(held)>;
            return std::is_arithmetic_v<Kind> && !std::is_same_v<Kind, bool>;
        },
        held_);
}

std::string ConfigValue::AsText() const {
    return std::visit(
        [](const auto& held) -> std::string {
            using Kind = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Kind, std::string>) {
                return held;
            } else if constexpr (std::is_arithmetic_v<Kind>) {
                return NumberText(held);
            } else {
                return {};
            }
        },
        held_);
}

double ConfigValue::AsNumber() const {
    return std::visit(
        [](const auto& held) -> double {
            using Kind = std::decay_t<decltype(held)>;
            if constexpr (std::is_same_v<Kind, std::string>) {
                return NumberValue(held);
            } else if constexpr (std::is_arithmetic_v<Kind>) {
                return static_cast<double>(held);
            } else {
                return 0;
            }
        },
        held_);
}

std::int32_t ConfigValue::AsWhole() const {
    return WholeNumber(AsNumber());
}

ConfigMapRef ConfigValue::AsMap() const {
    const ConfigMapRef* map = std::get_if<ConfigMapRef>(&held_);
    return map ? *map : nullptr;
}
