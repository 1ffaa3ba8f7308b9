#include "desk/live/gallery/WindowAlbum.h"

#include "desk/paint/sheets/ContactSheet.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace kestrune::desk {

namespace {

constexpr double PagesScale = 2;
constexpr double SheetScale = 1;

} // namespace

std::optional<InputError> makeFolder(const std::string& folder) {
    std::error_code failure;
    std::filesystem::create_directories(folder, failure);
    if (failure) {
        return inputError(folder, "expected a folder that can be written: " + failure.message());
    }
    return std::nullopt;
}

std::optional<InputError> writeAlbum(const std::string& folder,
                                     const std::variant<WindowAlbum, InputError>& made) {
    if (const auto* const error = std::get_if<InputError>(&made)) {
        return *error;
    }
    const auto& album = std::get<WindowAlbum>(made);
    const std::filesystem::path root(folder);
    ContactSheet sheet{album.title, album.columns, {}};
    for (const AlbumPage& page : album.pages) {
        const std::string appearance = page.dark ? "dark" : "light";
        const std::string path = (root / (page.name + "-" + appearance + ".png")).string();
        if (const auto error = writeWindowPicture(path, page.window, page.dark, PagesScale)) {
            return InputError{error->message};
        }
        sheet.cells.push_back({page.caption + ", " + appearance, page.window, page.dark});
    }
    const auto error = writeContactSheet((root / "all.png").string(), sheet, SheetScale);
    return error ? std::optional(InputError{error->message}) : std::nullopt;
}

} // namespace kestrune::desk
