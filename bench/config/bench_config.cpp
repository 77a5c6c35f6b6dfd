// Reading and writing configuration documents beside a bare loop and two libraries. Reading
// includes freeing the tree.
#include <benchmark/benchmark.h>

#include <cstdio>

#include "config/reader.h"
#include "config/writer.h"
#include "documents.h"
#include "others.h"
#include "support/comparison.h"

namespace {

/// libconfig searches all the earlier keys of a structure for each key: a flat document of 100,000
/// takes it minutes.
constexpr int LargestFlatForLibconfig = 10'000;

/// What reads a text and what writes its content, empty if they cannot.
struct Contestant {
    Comparison::Work read;
    Comparison::Work write;
};

Contestant Ours(const ConfigMapRef& map) {
    return {[text = OutputBlock(*map, 0, "\r\n", true)] {
                std::size_t position = 0;
                benchmark::DoNotOptimize(ParseBlock(position, text).get());
            },
            [map] { benchmark::DoNotOptimize(OutputBlock(*map, 0, "\r\n", true).data()); }};
}

Contestant BareLoop(const std::string& text) {
    return {[text] { BareRead(text); }, [text] { BareWrite(text); }};
}

Contestant Libconfig(const std::string& text) {
    return {[text] { LibconfigRead(text); }, LibconfigWriter(text)};
}

Contestant Libucl(const std::string& text) {
    return {[text] { LibuclRead(text); }, LibuclWriter(text)};
}

void MeasureDocument(const Comparison& table, const std::string& name, const ConfigMapRef& map,
                     bool suitsLibconfig = true) {
    const std::size_t entries = EntriesOf(*map);
    const Contestant ours = Ours(map);
    const Contestant bare = BareLoop(OutputBlock(*map, 0, "\r\n", true));
    const Contestant libconfig =
        suitsLibconfig ? Libconfig(TextOf(*map, Dialect::Libconfig)) : Contestant{};
    const Contestant libucl = HasLibucl() ? Libucl(TextOf(*map, Dialect::Libucl)) : Contestant{};
    table.Measure("read " + name, entries, {ours.read, bare.read, libconfig.read, libucl.read});
    table.Measure("write " + name, entries,
                  {ours.write, bare.write, libconfig.write, libucl.write});
}

}  // namespace

int main(int argumentCount, char** arguments) {
    const ConfigMapRef settings = SettingsFile();
    std::printf("settings file: %zu bytes, %zu entries\n",
                OutputBlock(*settings, 0, "\r\n", true).size(), EntriesOf(*settings));
    const Comparison table(argumentCount, arguments, "Configuration documents", "entry",
                           {"ours", "bare loop", "libconfig", "libucl"});
    MeasureDocument(table, "settings file", settings);
    for (const int count : {1'000, 1'000'000}) {
        MeasureDocument(table, "flat " + std::to_string(count), Flat(count),
                        count <= LargestFlatForLibconfig);
        MeasureDocument(table, "nested " + std::to_string(count), Nested(count));
    }
    std::printf(
        "libconfig is left out of flat documents above %d entries: it is quadratic there.\n",
        LargestFlatForLibconfig);
}
