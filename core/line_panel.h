#pragma once

#include "core/controls.h"

#include <array>

/// A sample line of the line panel.
struct SampleLine {
    std::int16_t style = 1; // as `oLines::linestyle`
    std::int16_t width = 1;
    std::int32_t colour = 0;
};

/// What `picDrawLines` holds: the line tool.
struct LinePanel {
    OptionButton optSingleLine{true};
    OptionButton optPolyline;
    CheckBox chkArrow;
    CheckBox chkBoundry;
    ComboBox cboBoundrySize{
        "Battalion", {"Corps", "Division", "Brigade", "Regiment", "Battalion", "Company"}, false};
    std::array<OptionButton, 6> optLineStyle{{{}, {true}}}; // 1 solid ... 5 dash-dot-dot; 0 is none
    ScrollBar scrlLineWidth{0, 0, 0, 0, 1, 50, 1, 5, 1};
    Label lblLineWidth{"1"};
    ColourBox picLineColor;
    std::array<SampleLine, 3> lineEx;
    Button cmdStartDrawLines;
    Button cmdDeleteLine;
    Button cmdMovePoint;
    Button cmdDeletePoint;
    Button cmdInsertPointLine;
    Button cmdDeleteAllLines;
    Button cmdExitDrawLine;
    Button cmdLineColor;
};
