// Reading and writing configuration documents beside a bare loop and two libraries. Reading
// includes giving the tree back.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

#include "config/reader.h"
#include "config/writer.h"
#include "documents.h"
#include "others.h"
#include "support/comparison.h"

namespace {

/// libconfig looks for a key by walking all the keys before it: a large flat document takes it
/// minutes, so it is left out there.
constexpr int mostFlatForLibconfig = 10'000;

void AddLibconfig(Comparison& table, const std::string& name, const ConfigMap& map) {
    const std::string text = TextOf(map, Dialect::Libconfig);
    const std::size_t entries = EntriesOf(map);
    table.Add("read " + name, "libconfig", entries, [text] { LibconfigRead(text); });
    table.Add("write " + name, "libconfig", entries, LibconfigWriter(text));
}

void AddLibucl(Comparison& table, const std::string& name, const ConfigMap& map) {
    if (HasLibucl()) {
        const std::string text = TextOf(map, Dialect::Libucl);
        const std::size_t entries = EntriesOf(map);
        table.Add("read " + name, "libucl", entries, [text] { LibuclRead(text); });
        table.Add("write " + name, "libucl", entries, LibuclWriter(text));
    }
}

void AddDocument(Comparison& table, const std::string& name, const ConfigMapRef& map,
                 bool suitsLibconfig = true) {
    const std::string text = OutputBlock(*map, 0, "\r\n", true);
    const std::size_t entries = EntriesOf(*map);
    table.Add("read " + name, "ours", entries, [text] {
        std::size_t position = 0;
        benchmark::DoNotOptimize(ParseBlock(position, text).get());
    });
    table.Add("write " + name, "ours", entries,
              [map] { benchmark::DoNotOptimize(OutputBlock(*map, 0, "\r\n", true).data()); });
    table.Add("read " + name, "bare loop", entries, [text] { BareRead(text); });
    table.Add("write " + name, "bare loop", entries, [text] { BareWrite(text); });
    if (suitsLibconfig) {
        AddLibconfig(table, name, *map);
    }
    AddLibucl(table, name, *map);
}

}  // namespace

int main(int argumentCount, char** arguments) {
    Comparison table("Configuration documents", "entry");
    const ConfigMapRef settings = SettingsFile();
    std::printf("settings file: %zu bytes, %zu entries\n",
                OutputBlock(*settings, 0, "\r\n", true).size(), EntriesOf(*settings));
    AddDocument(table, "settings file", settings);
    for (const int count : {1'000, 100'000, 1'000'000}) {
        AddDocument(table, "flat " + std::to_string(count), Flat(count),
                    count <= mostFlatForLibconfig);
        AddDocument(table, "nested " + std::to_string(count), Nested(count));
    }
    table.Run(argumentCount, arguments);
    std::printf(
        "libconfig is left out of flat documents above %d entries: it is quadratic there.\n",
        mostFlatForLibconfig);
}
