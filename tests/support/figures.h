#pragma once

#include "core/drawing_list.h"
#include "core/numbers.h"

#include <string>
#include <vector>

/// What was drawn, told in short: "line 1,2 3,4", "circle 5,6 r7", "text 8,9 word".
inline std::string told(const DrawingList::Figure& figure) {
    using Kind = DrawingList::Kind;
    const auto place = [](Point p) { return " " + number_text(p.x) + "," + number_text(p.y); };
    std::string all;
    switch (figure.kind) {
    case Kind::line:
        all = "line";
        break;
    case Kind::circle:
        all = "circle";
        break;
    case Kind::pie:
        all = "pie";
        break;
    case Kind::polygon:
        all = "polygon";
        break;
    case Kind::print:
        all = "text";
        break;
    }
    for (const Point& point : figure.points) all += place(point);
    if (figure.kind == Kind::circle || figure.kind == Kind::pie) all += " r" + number_text(figure.radius);
    if (figure.kind == Kind::print) all += " " + figure.text;
    return all;
}

inline std::vector<std::string> told(const DrawingList& list) {
    std::vector<std::string> all;
    for (const DrawingList::Figure& figure : list.figures()) all.push_back(told(figure));
    return all;
}

inline std::string told(const Pen& pen) {
    return "fore " + std::to_string(pen.ForeColor) + " fill " + std::to_string(pen.FillColor) + " style " +
           std::to_string(pen.FillStyle) + " dash " + std::to_string(pen.DrawStyle) + " width " +
           std::to_string(pen.DrawWidth) + " mode " + std::to_string(pen.DrawMode);
}
