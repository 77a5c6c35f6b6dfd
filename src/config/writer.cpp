#include "config/writer.h"

#include <array>
#include <span>
#include <vector>

namespace {

/// For each character the letter that represents it after a backslash, 0 if it needs no escape.
constexpr auto EscapeLetters = [] {
    std::array<char, 256> table{};
    table['\\'] = '\\';
    table['\n'] = 'n';
    table['\r'] = 'r';
    table['\t'] = 't';
    table['"'] = '"';
    return table;
}();

void AppendEscaped(std::string& output, std::string_view text) {
    std::size_t start = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char letter = EscapeLetters[static_cast<unsigned char>(text[at])];
        if (letter != '\0') {
            output.append(text, start, at - start).append({'\\', letter});
            start = at + 1;
        }
    }
    output.append(text, start);
}

/// Writes without recursion, so that the depth of a document is limited by memory only.
class Writer {
  public:
    Writer(std::size_t level, std::string_view newLine, bool whitespace)
        : outerLevel_(level), newLine_(newLine), whitespace_(whitespace) {}

    std::string Write(const ConfigMap& map);
    bool Fits(const ConfigMap& map, std::size_t limit);

  private:
    void WriteNext();
    void WriteEntry(const ConfigEntry& entry);
    void WriteSetting(const ConfigEntry& entry);
    void OpenStructure(const std::string& key, const ConfigMap& map);
    void CloseStructure();
    void StartLine();
    void WriteLine(std::string_view content);
    void WriteEmptyLine();

    std::size_t outerLevel_;
    std::string_view newLine_;
    bool whitespace_;
    std::string output_;
    /// The entries left to write of each open structure, the root first.
    std::vector<std::span<const ConfigEntry>> open_;
};

std::string Writer::Write(const ConfigMap& map) {
    open_.push_back(map.Entries());
    while (!open_.empty()) {
        WriteNext();
    }
    return std::move(output_);
}

bool Writer::Fits(const ConfigMap& map, std::size_t limit) {
    open_.push_back(map.Entries());
    while (!open_.empty() && output_.size() <= limit) {
        limit -= output_.size();
        output_.clear();
        WriteNext();
    }
    return output_.size() <= limit;
}

/// Writes the next entry, or the end of the innermost structure.
void Writer::WriteNext() {
    std::span<const ConfigEntry>& rest = open_.back();
    if (!rest.empty()) {
        const ConfigEntry& entry = rest.front();
        rest = rest.subspan(1);
        WriteEntry(entry);
    } else {
        open_.pop_back();
        CloseStructure();
    }
}

void Writer::WriteEntry(const ConfigEntry& entry) {
    if (const ConfigMapRef map = entry.value.AsMap()) {
        OpenStructure(entry.key, *map);
    } else {
        WriteSetting(entry);
    }
}

void Writer::WriteSetting(const ConfigEntry& entry) {
    StartLine();
    output_.append(entry.key).append(whitespace_ ? " = " : "=");
    if (const auto* text = std::get_if<std::string>(&entry.value.Held())) {
        output_ += '"';
        AppendEscaped(output_, *text);
        output_ += '"';
    } else {
        output_ += entry.value.IsNothing() ? "\"\"" : entry.value.AsText();
    }
    output_.append(";").append(newLine_);
}

void Writer::OpenStructure(const std::string& key, const ConfigMap& map) {
    WriteEmptyLine();
    WriteLine(key);
    WriteLine("{");
    open_.push_back(map.Entries());
}

void Writer::CloseStructure() {
    if (!open_.empty()) {  // the root has no braces
        WriteLine("}");
        WriteEmptyLine();
    }
}

void Writer::StartLine() {
    if (whitespace_) {
        output_.append(outerLevel_ + open_.size() - 1, '\t');
    }
}

void Writer::WriteLine(std::string_view content) {
    StartLine();
    output_.append(content).append(newLine_);
}

void Writer::WriteEmptyLine() {
    if (whitespace_) {
        WriteLine({});
    }
}

}  // namespace

std::string EscapeText(std::string_view text) {
    std::string escaped;
    AppendEscaped(escaped, text);
    return escaped;
}

bool KeyCanBeReadBack(std::string_view key) {
    return key.find_first_of(" \t\r\n=;{}/") == std::string_view::npos;
}

std::string OutputBlock(const ConfigMap& map, std::size_t level, std::string_view newLine,
                        bool whitespace) {
    return Writer(level, newLine, whitespace).Write(map);
}

bool OutputFits(const ConfigMap& root, std::string_view newLine, bool whitespace,
                std::size_t limit) {
    return Writer(0, newLine, whitespace).Fits(root, limit);
}
