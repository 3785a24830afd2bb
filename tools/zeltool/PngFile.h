// Pixel images to and from PNG files (libpng).
#pragma once

#include <string>
#include <vector>

namespace ZelTool {

// A pixel is 0xAARRGGBB: alpha in the top byte, then red, green and blue.
struct Pixels {
    unsigned int width = 0;
    unsigned int height = 0;
    std::vector<unsigned int> data;
};

// Writes an RGBA PNG; false with `error` set on failure.
bool WritePng(const std::string& path, const Pixels& image, std::string& error);
// Reads a PNG into 0xAARRGGBB pixels; false with `error` set on failure.
bool ReadPng(const std::string& path, Pixels& image, std::string& error);

} // namespace ZelTool
