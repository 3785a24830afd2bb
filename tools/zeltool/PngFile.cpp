#include "PngFile.h"

#include <cstdio>
#include <png.h>

namespace ZelTool {

namespace {

struct File {
    FILE* f;
    explicit File(FILE* file) : f(file) {}
    ~File() {
        if (f) std::fclose(f);
    }
};

} // namespace

bool WritePng(const std::string& path, const Pixels& image, std::string& error) {
    if (image.width == 0 || image.height == 0) {
        error = "the image is empty";
        return false;
    }
    File file(std::fopen(path.c_str(), "wb"));
    if (!file.f) {
        error = "can't create the file";
        return false;
    }
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png ? png_create_info_struct(png) : nullptr;
    if (!info) {
        png_destroy_write_struct(&png, nullptr);
        error = "can't start the PNG writer";
        return false;
    }
    std::vector<unsigned char> row(image.width * 4);
    if (setjmp(png_jmpbuf(png))) {
        png_destroy_write_struct(&png, &info);
        error = "PNG write error";
        return false;
    }
    png_init_io(png, file.f);
    png_set_IHDR(png, info, image.width, image.height, 8, PNG_COLOR_TYPE_RGBA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    for (unsigned int y = 0; y < image.height; ++y) {
        for (unsigned int x = 0; x < image.width; ++x) {
            unsigned int p = image.data[y * image.width + x];
            row[x * 4 + 0] = static_cast<unsigned char>(p >> 16);
            row[x * 4 + 1] = static_cast<unsigned char>(p >> 8);
            row[x * 4 + 2] = static_cast<unsigned char>(p);
            row[x * 4 + 3] = static_cast<unsigned char>(p >> 24);
        }
        png_write_row(png, row.data());
    }
    png_write_end(png, nullptr);
    png_destroy_write_struct(&png, &info);
    return true;
}

bool ReadPng(const std::string& path, Pixels& image, std::string& error) {
    png_image png;
    png = png_image{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str())) {
        error = png.message;
        return false;
    }
    png.format = PNG_FORMAT_BGRA; // little-endian words of 0xAARRGGBB
    image.width = png.width;
    image.height = png.height;
    image.data.assign(static_cast<size_t>(png.width) * png.height, 0);
    if (!png_image_finish_read(&png, nullptr, image.data.data(), 0, nullptr)) {
        error = png.message;
        png_image_free(&png);
        return false;
    }
    return true;
}

} // namespace ZelTool
