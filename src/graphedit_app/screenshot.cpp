#include "graphedit_app/screenshot.h"

#include <tcl.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "kernel/window/tk_window.h"

namespace mero {

namespace {

std::uint32_t crc32(const std::string& bytes) {
  static std::array<std::uint32_t, 256> table = [] {
    std::array<std::uint32_t, 256> t{};
    for (std::uint32_t n = 0; n < 256; ++n) {
      std::uint32_t c = n;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xedb88320u ^ (c >> 1) : c >> 1;
      t[n] = c;
    }
    return t;
  }();
  std::uint32_t c = 0xffffffffu;
  for (unsigned char b : bytes) c = table[(c ^ b) & 0xff] ^ (c >> 8);
  return c ^ 0xffffffffu;
}

void put32(std::string& out, std::uint32_t v) {
  for (int s = 24; s >= 0; s -= 8) out += static_cast<char>((v >> s) & 0xff);
}

void chunk(std::string& out, const char* type, const std::string& data) {
  put32(out, static_cast<std::uint32_t>(data.size()));
  std::string body = std::string(type, 4) + data;
  out += body;
  put32(out, crc32(body));
}

std::uint32_t big32(const std::string& d, std::size_t at) {
  return (static_cast<std::uint32_t>(static_cast<unsigned char>(d[at])) << 24) |
         (static_cast<std::uint32_t>(static_cast<unsigned char>(d[at + 1])) << 16) |
         (static_cast<std::uint32_t>(static_cast<unsigned char>(d[at + 2])) << 8) |
         static_cast<std::uint32_t>(static_cast<unsigned char>(d[at + 3]));
}

}  // namespace

std::string png_image(int width, int height, const std::vector<unsigned char>& rgb) {
  std::string raw;  // each row behind its filter byte 0
  for (int y = 0; y < height; ++y) {
    raw += '\0';
    raw.append(reinterpret_cast<const char*>(rgb.data()) + static_cast<std::size_t>(y) * width * 3,
               static_cast<std::size_t>(width) * 3);
  }
  std::string z = "\x78\x01";  // zlib header: deflate, no preset dictionary
  std::size_t at = 0;
  do {
    std::size_t n = std::min<std::size_t>(65535, raw.size() - at);
    bool last = at + n == raw.size();
    z += static_cast<char>(last ? 1 : 0);
    z += static_cast<char>(n & 0xff);
    z += static_cast<char>(n >> 8);
    z += static_cast<char>(~n & 0xff);
    z += static_cast<char>((~n >> 8) & 0xff);
    z.append(raw, at, n);
    at += n;
  } while (at < raw.size());
  std::uint32_t a = 1, b = 0;  // Adler-32 of the raw data
  for (unsigned char c : raw) {
    a = (a + c) % 65521;
    b = (b + a) % 65521;
  }
  put32(z, (b << 16) | a);
  std::string png = "\x89PNG\r\n\x1a\n";
  std::string header;
  put32(header, static_cast<std::uint32_t>(width));
  put32(header, static_cast<std::uint32_t>(height));
  header += std::string("\x08\x02\x00\x00\x00", 5);  // 8 bits, RGB, deflate, no filter, no interlace
  chunk(png, "IHDR", header);
  chunk(png, "IDAT", z);
  chunk(png, "IEND", "");
  return png;
}

bool read_xwd(const std::string& d, int& width, int& height, std::vector<unsigned char>& rgb) {
  if (d.size() < 100) return false;
  std::uint32_t header_size = big32(d, 0), format = big32(d, 8), depth = big32(d, 12);
  width = static_cast<int>(big32(d, 16));
  height = static_cast<int>(big32(d, 20));
  std::uint32_t byte_order = big32(d, 28), bits = big32(d, 44), line = big32(d, 48);
  std::uint32_t masks[3] = {big32(d, 56), big32(d, 60), big32(d, 64)};
  std::uint32_t colours = big32(d, 76);
  if (format != 2 || depth < 24 || (bits != 24 && bits != 32) || width <= 0 || height <= 0 ||
      width > 20000 || height > 20000)
    return false;
  std::size_t start = header_size + static_cast<std::size_t>(colours) * 12;
  std::size_t step = bits / 8;
  if (d.size() < start + static_cast<std::size_t>(line) * height || line < width * step) return false;
  rgb.assign(static_cast<std::size_t>(width) * height * 3, 0);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      std::size_t at = start + static_cast<std::size_t>(y) * line + x * step;
      std::uint32_t value = 0;
      for (std::size_t k = 0; k < step; ++k) {
        std::uint32_t byte = static_cast<unsigned char>(d[at + k]);
        value |= byte_order ? byte << (8 * (step - 1 - k)) : byte << (8 * k);
      }
      for (int c = 0; c < 3; ++c) {
        std::uint32_t m = masks[c];
        int shift = 0;
        while (m != 0 && (m & 1) == 0) {
          m >>= 1;
          ++shift;
        }
        rgb[(static_cast<std::size_t>(y) * width + x) * 3 + c] =
            static_cast<unsigned char>((value >> shift) & 0xff);
      }
    }
  return true;
}

bool save_screenshot(const std::string& widget, const std::string& file_name, std::string& error) {
  Tcl_Interp* in = tk_interpreter();
  if (in == nullptr) {
    error = "There is no display to take a picture of.";
    return false;
  }
  Tcl_Eval(in, "update");
  std::string query = "winfo id " + widget;
  if (Tcl_Eval(in, query.c_str()) != TCL_OK) {
    error = "The drawing area is not shown.";
    return false;
  }
  std::string id = Tcl_GetStringResult(in);
  char dump[] = "/tmp/graphedit_xwd_XXXXXX";
  int fd = mkstemp(dump);
  if (fd < 0) {
    error = "Cannot make a temporary file.";
    return false;
  }
  close(fd);
  std::string command = "xwd -silent -id " + id + " -out " + dump + " 2>/dev/null";
  int status = std::system(command.c_str());
  std::ifstream dumped(dump, std::ios::binary);
  std::string data((std::istreambuf_iterator<char>(dumped)), std::istreambuf_iterator<char>());
  std::remove(dump);
  int width = 0, height = 0;
  std::vector<unsigned char> rgb;
  if (status != 0 || !read_xwd(data, width, height, rgb)) {
    error = "The screen could not be read (is xwd installed?).";
    return false;
  }
  std::ofstream out(file_name, std::ios::binary);
  std::string png = png_image(width, height, rgb);
  if (!out.write(png.data(), static_cast<std::streamsize>(png.size()))) {
    error = "Cannot write " + file_name + ".";
    return false;
  }
  return true;
}

}  // namespace mero
