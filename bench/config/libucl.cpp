#include <benchmark/benchmark.h>
#include <ucl.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "others.h"

namespace {

using Object = std::unique_ptr<ucl_object_t, decltype(&ucl_object_unref)>;

Object Read(const std::string& text) {
    const std::unique_ptr<ucl_parser, decltype(&ucl_parser_free)> parser(
        ucl_parser_new(UCL_PARSER_NO_TIME), &ucl_parser_free);
    if (!ucl_parser_add_chunk(parser.get(), reinterpret_cast<const unsigned char*>(text.data()),
                              text.size())) {
        std::fprintf(stderr, "libucl: %s\n", ucl_parser_get_error(parser.get()));
        std::abort();
    }
    return {ucl_parser_get_object(parser.get()), &ucl_object_unref};
}

}  // namespace

void LibuclRead(const std::string& text) {
    const Object object = Read(text);
    benchmark::DoNotOptimize(object.get());
}

std::function<void()> LibuclWriter(const std::string& text) {
    const std::shared_ptr<ucl_object_t> object(Read(text).release(), &ucl_object_unref);
    return [object] { std::free(ucl_object_emit(object.get(), UCL_EMIT_CONFIG)); };
}
