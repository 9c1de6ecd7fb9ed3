#ifndef OX_BENCH_PEERS_OPENSSL_H
#define OX_BENCH_PEERS_OPENSSL_H

#include <memory>
#include <vector>

#include <bench/support/contestant.h>

namespace peers {

using byte_list = std::vector<unsigned char>;

/// Encodes bytes to Base64, into fresh memory. Facts: size, sum of all bytes.
bench::contestant openssl_encode(std::shared_ptr<const byte_list> bytes);

/// Decodes a Base64 text, into fresh memory. Facts: size, sum of all bytes.
bench::contestant openssl_decode(std::shared_ptr<const byte_list> text);

} // namespace peers

#endif
