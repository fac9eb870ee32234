#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Its input is const then.
#define ZLIB_CONST
#include <zlib.h>

namespace kalvo::net {

/// Unpacks one gzip stream (RFC 1952) that comes in pieces.
class GzipReader {
 public:
    enum class Result { kFine, kCorrupt, kTooLong };

    GzipReader();
    GzipReader(const GzipReader&) = delete;
    GzipReader& operator=(const GzipReader&) = delete;
    ~GzipReader();

    /// Appends to `out` what the next bytes of the stream unpack to, as long as `out` has no more
    /// than `limit` bytes. What is no gzip, a wrong checksum and anything behind the stream's end
    /// is corrupt. After any other result than `kFine` the reader is not to be used again.
    [[nodiscard]] Result read(std::string_view bytes, std::string& out, std::size_t limit);

    /// Returns whether the stream has come to its end.
    [[nodiscard]] bool isComplete() const { return isComplete_; }

 private:
    z_stream stream_{};
    bool isComplete_ = false;
};

}  // namespace kalvo::net
