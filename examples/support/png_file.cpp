#include <examples/support/png_file.h>

#include <png.h>

#include <cstdio>
#include <memory>
#include <stdexcept>

#include <unistd.h>

namespace ox_examples {

namespace {

[[noreturn]] void fail(const std::string& path, const std::string& what) {
    throw std::runtime_error(path + ": " + what);
}

bool is_consistent(const image& picture) {
    return picture.width > 0 && picture.height > 0 &&
           picture.rgba.size() == static_cast<std::size_t>(picture.width) *
                                      static_cast<std::size_t>(picture.height) * 4;
}

} // namespace

void write_png(const std::string& path, const image& picture) {
    if (!is_consistent(picture)) {
        fail(path, "the picture is empty or inconsistent");
    }
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    header.width = static_cast<png_uint_32>(picture.width);
    header.height = static_cast<png_uint_32>(picture.height);
    header.format = PNG_FORMAT_RGBA;

    // The process number keeps two programs that write the same picture apart.
    const std::string temporary = path + "." + std::to_string(getpid()) + ".tmp";
    const bool written = png_image_write_to_file(&header, temporary.c_str(), 0, picture.rgba.data(),
                                                 0, nullptr) != 0;
    if (!written || std::rename(temporary.c_str(), path.c_str()) != 0) {
        std::remove(temporary.c_str());
        fail(path, written ? "cannot be replaced" : header.message);
    }
}

image read_png(const std::string& path) {
    png_image header = {};
    header.version = PNG_IMAGE_VERSION;
    const std::unique_ptr<png_image, void (*)(png_image*)> freed_at_end(&header, png_image_free);
    if (png_image_begin_read_from_file(&header, path.c_str()) == 0) {
        fail(path, header.message);
    }
    header.format = PNG_FORMAT_RGBA;

    image picture;
    picture.width = static_cast<int>(header.width);
    picture.height = static_cast<int>(header.height);
    picture.rgba.resize(PNG_IMAGE_SIZE(header));
    if (png_image_finish_read(&header, nullptr, picture.rgba.data(), 0, nullptr) == 0) {
        fail(path, header.message);
    }
    return picture;
}

} // namespace ox_examples
