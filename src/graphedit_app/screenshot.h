#pragma once
// A PNG picture of a Tk widget as it stands on the screen: the X server's dump of the widget's
// window (taken by `xwd`) turned into PNG.

#include <string>
#include <vector>

namespace mero {

// False, with the reason in error, when there is no display, `xwd` fails or the file cannot be
// written.
bool save_screenshot(const std::string& widget, const std::string& file_name, std::string& error);

// A PNG file of width x height pixels given row by row, three bytes (red, green, blue) each; the
// image data is stored in uncompressed deflate blocks, which every reader accepts.
std::string png_image(int width, int height, const std::vector<unsigned char>& rgb);

// The pixels of an X window dump in ZPixmap form with 24 or 32 bits per pixel; false for any
// other form or a short file.
bool read_xwd(const std::string& data, int& width, int& height, std::vector<unsigned char>& rgb);

}  // namespace mero
