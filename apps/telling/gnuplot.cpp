#include "telling/gnuplot.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "telling/child_process.h"
#include "telling/output_file.h"
#include "telling/unique_name.h"

namespace quorvel::host {
namespace {

namespace fs = std::filesystem;

// A folder of its own for the script and the picture, gone with this.
class Workplace {
  public:
    Workplace() {
        std::error_code fault;
        folder_ = fs::temp_directory_path(fault) / ("quorvel" + unique_name());
        if (fault || !fs::create_directory(folder_, fault))
            throw std::runtime_error(
                "a chart needs room to draw, and there is no folder for temporary files");
    }
    ~Workplace() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    Workplace(const Workplace&) = delete;
    Workplace& operator=(const Workplace&) = delete;

    std::string file(const char* name) const { return (folder_ / name).string(); }

  private:
    fs::path folder_;
};

// How a whole picture ends: on a full disk gnuplot leaves half of one and is content.
bool is_whole(std::string_view picture, Format format) {
    const auto last = picture.substr(picture.size() - std::min<std::size_t>(picture.size(), 16));
    switch (format) {
        case Format::svg:
            return last.find("</svg>") != last.npos;
        case Format::pdf:
            return last.find("%%EOF") != last.npos;
        case Format::png:
            return last.find("IEND") != last.npos;
    }
    return false;
}

// The same picture gives the same bytes: the date, which is of no use, becomes a space of its
// length, as a PDF file names the places of its parts.
void forget_date(std::string& pdf) {
    const std::size_t date = pdf.find("/CreationDate (");
    if (date == pdf.npos) return;
    const std::size_t end = pdf.find(')', date);
    std::fill(pdf.begin() + static_cast<std::ptrdiff_t>(date),
              pdf.begin() + static_cast<std::ptrdiff_t>(std::min(end + 1, pdf.size())), ' ');
}

// The line that says what is wrong, among those that show where.
std::string complaint(const std::string& errors) {
    std::string found;
    for (std::size_t begin = 0; begin < errors.size();) {
        const std::size_t end = std::min(errors.find('\n', begin), errors.size());
        const std::string line = errors.substr(begin, end - begin);
        if (line.find_first_not_of(" ^\t\r") != line.npos) found = line;
        begin = end + 1;
    }
    return found;
}

}  // namespace

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) result.append(c == '\'' ? 2 : 1, c);
    return result + '\'';
}

std::string draw_with_gnuplot(const std::string& terminal, const std::string& commands,
                              Format format) {
    const Workplace place;
    write_file(place.file("script"), terminal + "\nset output " + quoted(place.file("picture")) +
                                         '\n' + commands + "\nunset multiplot\nunset output\n");
    const auto status = run_program("gnuplot", place.file("script"), place.file("errors"));
    if (!status)
        throw std::runtime_error(
            "a chart needs gnuplot, which is not installed or not on the path");
    std::string picture = read_file(place.file("picture"));
    if (format == Format::pdf) forget_date(picture);
    if (*status == 0 && is_whole(picture, format)) return picture;
    std::string message = "gnuplot could not draw the picture";
    const std::string reason = complaint(read_file(place.file("errors")));
    if (!reason.empty()) message.append(": ").append(reason);
    throw std::runtime_error(message);
}

}  // namespace quorvel::host
