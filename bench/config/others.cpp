#include "others.h"

#include <benchmark/benchmark.h>
#include <libconfig.h>

#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

struct Document {
    config_t config{};
    explicit Document(const std::string& text) {
        config_init(&config);
        if (config_read_string(&config, text.c_str()) != CONFIG_TRUE) {
            std::fprintf(stderr, "libconfig: %s\n", config_error_text(&config));
            std::abort();
        }
    }
    Document(const Document&) = delete;
    Document& operator=(const Document&) = delete;
    ~Document() { config_destroy(&config); }
};

}  // namespace

void BareRead(const std::string& text) {
    long settings = 0;
    long depth = 0;
    long others = 0;
    bool inString = false;
    for (const char character : text) {
        switch (character) {
            case '{':
                ++depth;
                break;
            case '}':
                --depth;
                break;
            case ';':
                settings += inString ? 0 : 1;
                break;
            case '"':
                inString = !inString;
                break;
            case '\\':
            case '/':
            case '=':
                ++others;
                break;
            case ' ':
            case '\t':
            case '\r':
            case '\n':
                break;
            default:
                ++others;
                break;
        }
    }
    benchmark::DoNotOptimize(settings + depth + others);
}

void BareWrite(const std::string& text) {
    static std::vector<char> buffer;
    buffer.resize(text.size() * 2);
    char* at = buffer.data();
    for (const char character : text) {
        switch (character) {
            case '\\':
            case '"':
                *at++ = '\\';
                break;
            default:
                break;
        }
        *at++ = character;
    }
    benchmark::DoNotOptimize(buffer.data());
    benchmark::ClobberMemory();
}

void LibconfigRead(const std::string& text) {
    const Document document(text);
    benchmark::DoNotOptimize(document.config.root);
}

std::function<void()> LibconfigWriter(const std::string& text) {
    return [document = std::make_shared<Document>(text)] {
        char* bytes = nullptr;
        std::size_t size = 0;
        FILE* const stream = open_memstream(&bytes, &size);
        config_write(&document->config, stream);
        std::fclose(stream);
        std::free(bytes);
    };
}
