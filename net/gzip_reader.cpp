#include "net/gzip_reader.h"

#include <array>
#include <new>

namespace kalvo::net {

GzipReader::GzipReader() {
    constexpr int kGzipOnly = 16;  // added to the size of the window
    if (inflateInit2(&stream_, MAX_WBITS + kGzipOnly) != Z_OK) throw std::bad_alloc();
}

GzipReader::~GzipReader() { inflateEnd(&stream_); }

GzipReader::Result GzipReader::read(std::string_view bytes, std::string& out, std::size_t limit) {
    const void* const in = bytes.data();
    stream_.next_in = static_cast<const Bytef*>(in);
    stream_.avail_in = static_cast<uInt>(bytes.size());
    std::array<char, 16384> piece{};
    void* const unpacked = piece.data();
    do {
        if (isComplete_) return stream_.avail_in > 0 ? Result::kCorrupt : Result::kFine;
        stream_.next_out = static_cast<Bytef*>(unpacked);
        stream_.avail_out = static_cast<uInt>(piece.size());
        const int status = inflate(&stream_, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END && status != Z_BUF_ERROR) {
            return Result::kCorrupt;
        }
        out.append(piece.data(), piece.size() - stream_.avail_out);
        if (out.size() > limit) return Result::kTooLong;
        isComplete_ = status == Z_STREAM_END;
        // A full piece may have left more behind.
    } while (stream_.avail_in > 0 || stream_.avail_out == 0);
    return Result::kFine;
}

}  // namespace kalvo::net
