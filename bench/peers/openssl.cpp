#include <bench/peers/openssl.h>

namespace {

constexpr char openssl_name[] = "OpenSSL";

} // namespace

#ifdef OX_BENCH_HAS_OPENSSL

#include <openssl/evp.h>

#include <algorithm>
#include <numeric>

namespace peers {
namespace {

struct coded {
    std::unique_ptr<unsigned char[]> bytes;
    int size = 0;
};

void encode(const byte_list& bytes, coded& made) {
    made.bytes.reset(new unsigned char[bytes.size() / 3 * 4 + 5]);
    made.size = EVP_EncodeBlock(made.bytes.get(), bytes.data(), static_cast<int>(bytes.size()));
}

// The decoder counts the padding as bytes.
void decode(const byte_list& text, coded& made) {
    made.bytes.reset(new unsigned char[text.size() / 4 * 3]);
    const auto padding = std::count(text.end() - 2, text.end(), '=');
    made.size = EVP_DecodeBlock(made.bytes.get(), text.data(), static_cast<int>(text.size())) -
                static_cast<int>(padding);
}

std::vector<bench::fact> facts_of(const coded& made) {
    const unsigned char* const bytes = made.bytes.get();
    return {{"size", static_cast<double>(made.size), 0.0},
            {"sum",
             static_cast<double>(std::accumulate(bytes, bytes + std::max(made.size, 0), 0ll)),
             0.0}};
}

} // namespace

bench::contestant openssl_encode(std::shared_ptr<const byte_list> bytes) {
    return bench::make_contestant(
        openssl_name, [] { return coded(); }, [=](coded& made) { encode(*bytes, made); }, facts_of);
}

bench::contestant openssl_decode(std::shared_ptr<const byte_list> text) {
    return bench::make_contestant(
        openssl_name, [] { return coded(); }, [=](coded& made) { decode(*text, made); }, facts_of);
}

} // namespace peers

#else

namespace peers {

bench::contestant openssl_encode(std::shared_ptr<const byte_list>) {
    return bench::absent(openssl_name);
}

bench::contestant openssl_decode(std::shared_ptr<const byte_list>) {
    return bench::absent(openssl_name);
}

} // namespace peers

#endif
