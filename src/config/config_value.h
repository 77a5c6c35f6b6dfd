// One value of a configuration document.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>

class ConfigMap;
/// A map inside a document is shared: every holder sees the same map and the same changes.
using ConfigMapRef = std::shared_ptr<ConfigMap>;

/// Nothing, a number of one of four widths, a flag, a text of single bytes or a nested map. The
/// As... functions convert and never fail: what cannot be converted becomes "", 0 or null.
class ConfigValue {
  public:
    using Kinds = std::variant<std::monostate, std::int16_t, std::int32_t, float, double, bool,
                               std::string, ConfigMapRef>;

    /// The value nothing, as ConfigMap::Item adds it for an absent key.
    ConfigValue() = default;
    ConfigValue(std::int16_t number) : held_(number) {}
    ConfigValue(std::int32_t number) : held_(number) {}
    ConfigValue(float number) : held_(number) {}
    ConfigValue(double number) : held_(number) {}
    ConfigValue(bool flag) : held_(flag) {}
    ConfigValue(std::string text) : held_(std::move(text)) {}
    ConfigValue(std::string_view text) : held_(std::string(text)) {}
    ConfigValue(const char* text) : held_(std::string(text)) {}
    /// The map itself, no copy. A null reference makes the value nothing.
    ConfigValue(ConfigMapRef map) {
        if (map) {
            held_ = std::move(map);
        }
    }

    bool IsNothing() const { return std::holds_alternative<std::monostate>(held_); }
    /// Whether it is a whole or a real number; a flag is not.
    bool IsNumber() const;
    bool IsText() const { return std::holds_alternative<std::string>(held_); }
    bool IsMap() const { return std::holds_alternative<ConfigMapRef>(held_); }

    /// The text; a number in its written form, a flag as 1 or 0.
    std::string AsText() const;
    /// The number; the NumberValue of a text; a flag as 1 or 0.
    double AsNumber() const;
    /// AsNumber, rounded by WholeNumber (number.h).
    std::int32_t AsWhole() const;
    /// The map itself, or null for every other kind.
    ConfigMapRef AsMap() const;

    /// The stored value, not converted.
    const Kinds& Held() const { return held_; }

  private:
    Kinds held_;
};
