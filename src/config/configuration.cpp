#include "config/configuration.h"

#include <new>
#include <utility>

#include "config/reader.h"
#include "config/writer.h"

namespace {

platform::Outcome OutOfMemory() {
    return {false, "There is not enough memory"};
}

/// Creates the file if it is missing. A file with content was not missing: then the outcome is the
/// reason why it could not be read.
platform::Outcome CreateIfMissing(const std::string& fileName, const platform::Outcome& reason) {
    platform::File file;
    platform::Outcome outcome = file.Open(fileName, platform::File::Access::Create);
    return file.Size() > 0 ? reason : outcome;
}

}  // namespace

platform::Outcome clsConfiguration::LoadConfiguration(const std::string& fileName) {
    std::string text;
    platform::Outcome outcome = platform::ReadWholeFile(fileName, text);
    if (!outcome) {
        outcome = CreateIfMissing(fileName, outcome);
    }
    return outcome ? InputConfiguration(text) : outcome;
}

platform::Outcome clsConfiguration::InputConfiguration(std::string_view configuration) {
    try {
        std::size_t position = 0;
        configurationRoot_ = ParseBlock(position, configuration, &textWasComplete_);
        return {};
    } catch (const std::bad_alloc&) {
        return OutOfMemory();
    }
}

void clsConfiguration::NewConfiguration() {
    configurationRoot_ = std::make_shared<ConfigMap>();
    textWasComplete_ = true;
}

void clsConfiguration::RemoveSetting(std::string_view setting) {
    configurationRoot_->Remove(setting);
}

platform::Outcome clsConfiguration::SaveConfiguration(const std::string& fileName,
                                                      std::string_view newLine,
                                                      bool whitespace) const {
    try {
        // A text grows with the square of the depth of its tree, and a larger file cannot be read.
        return OutputFits(*configurationRoot_, newLine, whitespace, platform::LargestWholeFile)
                   ? platform::ReplaceWholeFile(fileName, OutputConfiguration(newLine, whitespace))
                   : platform::Outcome{false, "The text would be larger than 64 MiB"};
    } catch (const std::bad_alloc&) {
        return OutOfMemory();
    }
}

std::string clsConfiguration::OutputConfiguration(std::string_view newLine, bool whitespace) const {
    return OutputBlock(*configurationRoot_, 0, newLine, whitespace);
}

ConfigValue clsConfiguration::ReadSetting(std::string_view setting, ConfigValue fallback,
                                          bool reference) const {
    const ConfigValue* const value = configurationRoot_->Find(setting);
    if (!value) {
        return fallback;
    }
    const ConfigMapRef map = value->AsMap();
    return map && !reference ? ConfigValue(CopyBlock(*map)) : *value;
}

ConfigMapRef clsConfiguration::Root(bool reference) const {
    return reference ? configurationRoot_ : CopyBlock(*configurationRoot_);
}

void clsConfiguration::WriteSetting(std::string_view setting, ConfigValue value, bool reference) {
    if (!configurationRoot_->Exists(setting)) {
        configurationRoot_->Add(std::string(setting), std::move(value));
        return;
    }
    const ConfigMapRef map = value.AsMap();
    configurationRoot_->Item(setting) =
        map && !reference ? ConfigValue(CopyBlock(*map)) : std::move(value);
}
