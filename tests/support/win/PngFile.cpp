#include "support/win/PngFile.h"

#include <array>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace ormala::test {

namespace {

/// The polynomial of the PNG standard's check sum, bits reversed.
constexpr std::uint32_t crcPolynomial = 0xEDB88320U;

constexpr std::array<std::uint32_t, 256> crcTable() {
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t byte = 0; byte < 256; ++byte) {
        std::uint32_t value = byte;
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1U) != 0 ? (value >> 1U) ^ crcPolynomial : value >> 1U;
        }
        table[byte] = value;
    }
    return table;
}

std::uint32_t crc(std::string_view bytes) {
    static constexpr auto table = crcTable();
    std::uint32_t value = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        value = table[(value ^ static_cast<unsigned char>(byte)) & 0xFFU] ^ (value >> 8U);
    }
    return ~value;
}

std::uint32_t adler(std::string_view bytes) {
    constexpr std::uint32_t modulus = 65521;
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const char byte : bytes) {
        low = (low + static_cast<unsigned char>(byte)) % modulus;
        high = (high + low) % modulus;
    }
    return (high << 16U) | low;
}

std::string bigEndian(std::uint32_t value) {
    std::string bytes;
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
        bytes += static_cast<char>((value >> shift) & 0xFFU);
    }
    return bytes;
}

std::string chunk(std::string_view type, std::string_view content) {
    const std::string body = std::string(type) + std::string(content);
    return bigEndian(static_cast<std::uint32_t>(content.size())) + body + bigEndian(crc(body));
}

/// A zlib stream of stored blocks, which hold up to 65535 bytes each.
std::string stored(std::string_view bytes) {
    constexpr std::size_t blockSize = 65535;
    std::string stream = "\x78\x01";
    for (std::size_t at = 0; at < bytes.size(); at += blockSize) {
        const std::string_view block = bytes.substr(at, blockSize);
        const auto length = static_cast<std::uint16_t>(block.size());
        const bool last = at + blockSize >= bytes.size();
        stream += last ? '\1' : '\0';
        for (const unsigned part : {0U + length, 0xFFFFU - length}) {
            stream += static_cast<char>(part & 0xFFU);
            stream += static_cast<char>(part >> 8U);
        }
        stream += block;
    }
    return stream + bigEndian(adler(bytes));
}

std::string scanLines(const Picture& picture) {
    const ScreenRect& rect = picture.rect();
    std::string bytes;
    for (int y = rect.top; y < rect.bottom; ++y) {
        bytes += '\0';
        for (int x = rect.left; x < rect.right; ++x) {
            const Color color = picture.at({x, y});
            for (const unsigned shift : {0U, 8U, 16U}) {
                bytes += static_cast<char>((color >> shift) & 0xFFU);
            }
        }
    }
    return bytes;
}

std::string header(const Picture& picture) {
    constexpr std::string_view eightBitRgb("\x08\x02\x00\x00\x00", 5);
    return bigEndian(static_cast<std::uint32_t>(picture.rect().width())) +
           bigEndian(static_cast<std::uint32_t>(picture.rect().height())) +
           std::string(eightBitRgb);
}

}  // namespace

void savePng(const Picture& picture, const std::filesystem::path& path) {
    std::ofstream file(path, std::ios::binary);
    file << "\x89PNG\r\n\x1A\n"
         << chunk("IHDR", header(picture)) << chunk("IDAT", stored(scanLines(picture)))
         << chunk("IEND", "");
    file.close();
    if (!file) {
        throw std::runtime_error("cannot write the picture " + path.string());
    }
}

}  // namespace ormala::test
