// libucl as it is in the package that scripts/get-libucl unpacks: without its header, and in a
// library that has its own operator new. So it is loaded at run time, with its symbols kept apart.
#include <benchmark/benchmark.h>
#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "others.h"

namespace {

constexpr int NoTimeValues = 4;  // UCL_PARSER_NO_TIME
constexpr int ConfigForm = 2;    // UCL_EMIT_CONFIG

struct ucl_parser;
struct ucl_object_t;

/// Null if it is missing.
void* Library() {
    static void* const library = dlopen("librspamd-server.so", RTLD_LAZY | RTLD_LOCAL);
    return library;
}

/// Calls a function of its documented interface by name.
template <class Result, class... Parameters>
Result Call(const char* name, Parameters... parameters) {
    return reinterpret_cast<Result (*)(Parameters...)>(dlsym(Library(), name))(parameters...);
}

void Release(ucl_object_t* object) {
    Call<void>("ucl_object_unref", object);
}

using Object = std::unique_ptr<ucl_object_t, decltype(&Release)>;

Object Read(const std::string& text) {
    auto* const parser = Call<ucl_parser*>("ucl_parser_new", NoTimeValues);
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
    return [object = std::shared_ptr<ucl_object_t>(Read(text))] {
        std::free(Call<char*>("ucl_object_emit", object.get(), ConfigForm));
    };
}
