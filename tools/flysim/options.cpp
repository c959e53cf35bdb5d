#include "options.h"

#include "planpoints.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace {

struct NumberOption
{
    const char* name;
    double Options::*field;
    double least;
    double most;
};

// The greatest factor and speed take an aircraft round the world in a few seconds, which nobody watches.
const std::array<NumberOption, 4> numberOptions = {{
    {"--heading", &Options::course, 0.0, 360.0},
    {"--speed", &Options::speed, 0.0, 10000.0},
    {"--factor", &Options::factor, 0.01, 1000.0},
    {"--rate", &Options::rate, 0.1, 1000.0},
}};

constexpr double poleDegrees = 90.0;
constexpr double circleDegrees = 360.0;

/// A number as a person writes it.
std::string plain(double number)
{
    std::string text = std::to_string(number);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    return text;
}

const NumberOption* numberOption(const std::string& name)
{
    for (const NumberOption& option : numberOptions) {
        if (name == option.name) {
            return &option;
        }
    }
    return nullptr;
}

std::string takeNumber(const NumberOption& option, const std::string& value, Options& options)
{
    double number = 0.0;
    if (!readNumber(value, number) || number < option.least || number > option.most) {
        return std::string(option.name) + " wants a number from " + plain(option.least) + " to " + plain(option.most) +
               ", not \"" + value + "\"";
    }
    options.*option.field = number;
    return {};
}

std::string takeStart(const std::string& value, Options& options)
{
    GeoPoint start{};
    // A plan's third number is passed over; here it is a decimal comma or a slip.
    if (std::count(value.begin(), value.end(), ',') != 1 || !readPair(value, start.latitude, start.longitude) ||
        std::abs(start.latitude) > poleDegrees || std::abs(start.longitude) > circleDegrees) {
        return "--start wants LATITUDE,LONGITUDE, two numbers of degrees with decimal points, such as 48.7295,2.359, "
               "not \"" +
               value + "\"";
    }
    options.start = start;
    return {};
}

bool wantsValue(const std::string& name)
{
    return name == "--plan" || name == "--start" || numberOption(name) != nullptr;
}

/// What was given, for the options that go or do not go together.
struct Given
{
    bool plan = false;
    bool start = false;
    bool heading = false;
};

std::string takeValue(const std::string& name, const std::string& value, Options& options, Given& given)
{
    if (name == "--plan") {
        given.plan = true;
        options.plan = value;
        return value.empty() ? "--plan wants the path of a flight plan" : std::string();
    }
    if (name == "--start") {
        given.start = true;
        return takeStart(value, options);
    }
    given.heading = given.heading || name == "--heading";
    return takeNumber(*numberOption(name), value, options);
}

std::string complaintAbout(const Given& given, const Options& options)
{
    if (given.plan == given.start) {
        return given.plan ? "--plan and --start exclude each other" : "--plan or --start is wanted";
    }
    if (given.plan && given.heading) {
        return "--heading goes with --start; a plan has its own";
    }
    if (given.start && options.loop) {
        return "--loop goes with --plan";
    }
    return {};
}

} // namespace

bool readOptions(const std::vector<std::string>& arguments, Options& options, std::string& error)
{
    options = Options();
    error.clear();
    Given given;
    for (std::size_t i = 0; i < arguments.size() && error.empty(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help" || argument == "-h") {
            options.help = true;
            return true;
        }
        const std::size_t sign = argument.find('=');
        const std::string name = argument.substr(0, sign);
        if (argument == "--loop") {
            options.loop = true;
        } else if (!wantsValue(name)) {
            error = "unknown option \"" + argument + "\"";
        } else if (sign != std::string::npos) {
            error = takeValue(name, argument.substr(sign + 1), options, given);
        } else if (i + 1 == arguments.size()) {
            error = name + " wants a value";
        } else {
            error = takeValue(name, arguments[++i], options, given);
        }
    }
    if (error.empty()) {
        error = complaintAbout(given, options);
    }
    return error.empty();
}

std::string helpText()
{
    return R"(Usage: flysim --plan FILE [OPTIONS]
       flysim --start LATITUDE,LONGITUDE --heading DEGREES [OPTIONS]

Plays the simulator: flies a flight plan's great circles, or one great circle from a start position, and publishes the
aircraft's position and true course in the shared block from which the flight planner's trace takes them.
Ctrl+C ends it; the block keeps the last position.

  --plan FILE      the flight plan, a .fpl file
  --start LAT,LON  start position in degrees, north and east positive: 48.7295,2.359
  --heading DEG    true course from the start position, 0 to 360 (0)
  --speed KNOTS    speed over the ground, 0 to 10000 (120)
  --factor N       seconds of flight in one second, 0.01 to 1000 (1)
  --rate HZ        positions published a second, 0.1 to 1000 (25)
  --loop           begin the plan again at its end; without it the aircraft stays on the last point
  --help           this text

A value may also follow an equals sign: --speed=450.

Exit code: 0 ended by Ctrl+C or a termination request, 1 no plan to fly or no shared block, 2 wrong command line.
)";
}
