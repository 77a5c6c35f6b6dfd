// libucl as the package ships it that scripts/get-libucl unpacks: without its header, and in
// a library that brings an operator new of its own. So it is loaded by hand and kept to itself.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "others.h"

namespace {

constexpr int timesAreTexts = 4;  // UCL_PARSER_NO_TIME
constexpr int configForm = 2;     // UCL_EMIT_CONFIG

struct ucl_parser;
struct ucl_object_t;

/// Null when it is not there.
void* Library() {
    static void* const library = dlopen("librspamd-server.so", RTLD_LAZY | RTLD_LOCAL);
    return library;
}

/// A function of its documented interface, called by name.
template <class Result, class... Parameters>
Result Call(const char* name, Parameters... parameters) {
    return reinterpret_cast<Result (*)(Parameters...)>(dlsym(Library(), name))(parameters...);
}

void Release(ucl_object_t* object) {
    Call<void>("ucl_object_unref", object);
}

using Object = std::unique_ptr<ucl_object_t, decltype(&Release)>;

Object Read(const std::string& text) {
    auto* const parser = Call<ucl_parser*>("ucl_parser_new", timesAreTexts);
    if (!Call<bool>("ucl_parser_add_chunk", parser, text.data(), text.size())) {
        std::fprintf(stderr, "libucl: %s\n", Call<const char*>("ucl_parser_get_error", parser));
        std::abort();
    }
    Object object(Call<ucl_object_t*>("ucl_parser_get_object", parser), &Release);
    Call<void>("ucl_parser_free", parser);
    return object;
}

}  // namespace

bool HasLibucl() {
    return Library() != nullptr;
}

void LibuclRead(const std::string& text) {
    const Object object = Read(text);
    benchmark::DoNotOptimize(object.get());
}

std::function<void()> LibuclWriter(const std::string& text) {
    return [text, object = std::shared_ptr<ucl_object_t>()]() mutable {
        object = object ? object : Read(text);
        std::free(Call<char*>("ucl_object_emit", object.get(), configForm));
    };
}
