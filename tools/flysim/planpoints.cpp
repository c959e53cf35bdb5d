#include "planpoints.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <istream>
#include <optional>

namespace {

constexpr double arcSecondsPerDegree = 3600.0;
constexpr double poleDegrees = 90.0;
constexpr std::size_t tagLength = 6;
// Far beyond every line of a plan; the rest of a longer one is passed over, so that no foreign file fills the memory.
constexpr std::size_t longestLine = 4096;
// Far beyond every plan: what goes on and on is none.
constexpr long mostBytes = 64L * 1024 * 1024;

std::string trimmed(const std::string& text)
{
    static const char blanks[] = " \t\r\n\v\f";
    const std::size_t first = text.find_first_not_of(blanks);
    return first == std::string::npos ? std::string() : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isOneOf(const std::string& tag, std::initializer_list<const char*> tags)
{
    for (const char* known : tags) {
        if (tag == known) {
            return true;
        }
    }
    return false;
}

/// The lines of a file of any content.
class LineReader
{
public:
    explicit LineReader(std::istream& text) : input(text) {}

    /// The next line without blanks at its ends; false at the end.
    bool next(std::string& line)
    {
        line.clear();
        int byte = nextByte();
        if (byte == end) {
            return false;
        }
        for (; byte != end && byte != '\n'; byte = nextByte()) {
            if (line.size() < longestLine) {
                line += static_cast<char>(byte);
            }
        }
        line = trimmed(line);
        return true;
    }

private:
    static constexpr int end = std::istream::traits_type::eof();

    int nextByte()
    {
        return ++bytes > mostBytes ? end : input.get();
    }

    std::istream& input;
    long bytes = 0;
};

struct Waypoint
{
    std::string iden;
    std::optional<GeoPoint> place;
};

std::optional<GeoPoint> placeOf(const std::string& arcSeconds)
{
    double latitude = 0.0;
    double longitude = 0.0;
    if (!readPair(arcSeconds, latitude, longitude) || std::abs(latitude) > poleDegrees * arcSecondsPerDegree) {
        return std::nullopt;
    }
    return GeoPoint{latitude / arcSecondsPerDegree, longitude / arcSecondsPerDegree};
}

std::vector<Waypoint> readWaypoints(std::istream& plan)
{
    std::vector<Waypoint> waypoints;
    LineReader reader(plan);
    std::string line;
    while (reader.next(line)) {
        const std::string tag = line.substr(0, tagLength);
        std::string value;
        if (tag == "<wpnt>") {
            waypoints.emplace_back();
            reader.next(value);
        } else if (tag == "<iden>" || tag == "<llps>") {
            reader.next(value);
            if (waypoints.empty()) {
                continue;
            }
            if (tag == "<iden>") {
                waypoints.back().iden = value;
            } else {
                waypoints.back().place = placeOf(value);
            }
        } else if (isOneOf(tag, {"<name>", "<dbky>", "<user>", "<altd>", "<tkof>", "<land>", "<mark>", "<desc>",
                                 "<form>", "<vers>", "<ceil>"})) {
            // Were the value not read here, it could be taken for a tag.
            reader.next(value);
        }
    }
    return waypoints;
}

} // namespace

bool readNumber(const std::string& text, double& number)
{
    std::string digits = trimmed(text);
    // from_chars knows no plus sign; one is as much as none, in front of another sign it is a slip.
    if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-') {
        digits.erase(0, 1);
    }
    const char* end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number);
    return error == std::errc() && stop == end && std::isfinite(number);
}

bool readPair(const std::string& text, double& first, double& second)
{
    const std::size_t comma = text.find(',');
    if (comma == std::string::npos) {
        return false;
    }
    const std::size_t next = text.find(',', comma + 1);
    return readNumber(text.substr(0, comma), first) &&
           readNumber(text.substr(comma + 1, next == std::string::npos ? next : next - comma - 1), second);
}

PlanPoints readPlanPoints(std::istream& plan)
{
    PlanPoints read;
    for (const Waypoint& waypoint : readWaypoints(plan)) {
        ++read.waypoints;
        if (waypoint.place) {
            read.points.push_back({waypoint.iden, *waypoint.place});
        }
    }
    return read;
}

PlanPoints readPlanFile(const std::string& path, std::string& error)
{
    std::error_code failure;
    if (!std::filesystem::exists(path, failure)) {
        error = path + ": no such file";
        return {};
    }
    // A pipe or a device may never come to an end.
    std::ifstream file;
    if (std::filesystem::is_regular_file(path, failure)) {
        file.open(path, std::ios::binary);
    }
    if (!file.is_open()) {
        error = path + ": cannot be read";
        return {};
    }
    PlanPoints read = readPlanPoints(file);
    if (read.waypoints == 0) {
        error = path + ": is no flight plan";
    }
    return read;
}
