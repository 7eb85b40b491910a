#include "Compare.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace recoveryui::bench {
namespace {

constexpr const char* kFormat = "| %-44s | %12s | %12s | %6s | %13s | %7s | %-7s |\n";

// `part` of 4 of the way through the sorted values.
double Quartile(std::vector<double> values, size_t part) {
    std::sort(values.begin(), values.end());
    return values[(values.size() - 1) * part / 4];
}

std::string Number(const char* format, double value) {
    char text[32];
    std::snprintf(text, sizeof text, format, value);
    return text;
}

std::string Milliseconds(double value) {
    return Number(value < 10 ? "%.3f ms" : value < 1000 ? "%.1f ms" : "%.0f ms", value);
}

}  // namespace

double Now() {
    LARGE_INTEGER count{}, frequency{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

Side Timed(std::function<void()> work) {
    return [work = std::move(work)] {
        const double start = Now();
        work();
        return std::vector{Now() - start};
    };
}

void PrintHead() {
    std::printf(kFormat, "what", "product", "floor", "ratio", "quartiles", "goal", "");
    std::printf("|---|---:|---:|---:|---:|---:|---|\n");
}

void Compare(const std::vector<Line>& lines, int pairs, const Side& product, const Side& floor) {
    std::vector<std::vector<double>> products(lines.size()), floors(lines.size()), ratios(lines.size());
    for (int pair = -1; pair < pairs; ++pair) {
        const bool productFirst = pair % 2 == 0;
        std::vector<double> own = productFirst ? product() : std::vector<double>();
        const std::vector<double> other = floor();
        if (!productFirst) own = product();
        if (own.size() != lines.size() || other.size() != lines.size())
            throw std::logic_error("each side gives one time for each line");
        if (pair < 0) continue;
        for (size_t line = 0; line < lines.size(); ++line) {
            products[line].push_back(own[line]);
            floors[line].push_back(other[line]);
            ratios[line].push_back(own[line] / other[line]);
        }
    }
    for (size_t line = 0; line < lines.size(); ++line) {
        const double ratio = Quartile(ratios[line], 2);
        State(lines[line].what, Milliseconds(Quartile(products[line], 2)),
              Milliseconds(Quartile(floors[line], 2)), Number("%.2f", ratio),
              Number("%.2f", Quartile(ratios[line], 1)) + " - " + Number("%.2f", Quartile(ratios[line], 3)),
              lines[line].goal > 0 ? Number("%.2f", lines[line].goal) : "", ratio <= lines[line].goal);
    }
}

void State(const std::string& what, const std::string& product, const std::string& floor,
           const std::string& ratio, const std::string& spread, const std::string& goal, bool reached) {
    std::printf(kFormat, what.c_str(), product.c_str(), floor.c_str(), ratio.c_str(), spread.c_str(),
                goal.c_str(),
                goal.empty() ? ""
                : reached    ? "reached"
                             : "missed");
    std::fflush(stdout);
}

}  // namespace recoveryui::bench
