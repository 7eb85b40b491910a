// Measures the product against its floor, turn and turn about, and prints what came out.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace recoveryui::bench {

double Now();  // in milliseconds

// One line of the table and the ratio that it is to reach, 0 for a line that only tells.
struct Line {
    std::string what;
    double goal;
};

// Does the work once and gives the milliseconds of each line.
using Side = std::function<std::vector<double>()>;

// A side of one line: the time that the work takes.
Side Timed(std::function<void()> work);

void PrintHead();
// Both sides once to warm up, then in pairs; the ratio is the median of the pairs' own ratios.
void Compare(const std::vector<Line>& lines, int pairs, const Side& product, const Side& floor);
// A line of figures that were found another way; what does not apply stays empty.
void State(const std::string& what, const std::string& product, const std::string& floor,
           const std::string& ratio, const std::string& spread, const std::string& goal, bool reached);

// Keeps a result from being optimized away.
template <class Value>
void Use(const Value& value) {
    asm volatile("" : : "g"(&value) : "memory");
}

}  // namespace recoveryui::bench
