#pragma once

#include "annotation/arrowhead.h"
#include "annotation/line_panel.h"
#include "annotation/line_press.h"
#include "tests/support/map_test.h"

/// The line tool with its panel open.
class LineTool : public MapTest {
  protected:
    using Texts = std::vector<std::string>;
    using Place = std::pair<int, int>;

    LineTool() {
        main.picUnitInfo.left = 4;
        main.picUnitInfo.top = 296;
        main.picUnitInfo.width = 224;
        main.picUnitInfo.height = 300;
        cmdDrawLines_Click(program);
    }

    void draw() { cmdStartDrawLines_Click(program); }

    std::shared_ptr<oLines> add_line(const std::vector<Place>& places) {
        auto line = std::make_shared<oLines>();
        line->linewidth = 1;
        for (const auto& [x, y] : places)
            line->colCoords->add(std::make_shared<oCoordinates>(oCoordinates{x, y}));
        campaign.colLines->add(line);
        return line;
    }

    static std::vector<Place> places(const oLines& line) {
        std::vector<Place> all;
        for (const auto& vertex : line.colCoords) all.emplace_back(vertex->x_cor, vertex->y_cor);
        return all;
    }

    static std::vector<int> barbs(const oLines& line) {
        return {line.arrow1_x, line.arrow1_y, line.arrow2_x, line.arrow2_y};
    }

    std::vector<Button*> line_buttons() {
        return {&main.cmdStartDrawLines, &main.cmdDeleteLine,      &main.cmdMovePoint,
                &main.cmdDeletePoint,    &main.cmdInsertPointLine, &main.cmdDeleteAllLines};
    }

    /// No mode is on and each can be chosen.
    void expect_buttons_free() {
        for (const Button* button : line_buttons()) EXPECT_TRUE(button->enabled && !button->on());
    }

    void expect_scratch_line_at(double x, double y) const {
        const LineControl& line = program.main.linTempLine;
        EXPECT_TRUE(line.visible);
        EXPECT_EQ(std::pair(line.x1, line.y1), std::pair(x, y));
        EXPECT_EQ(std::pair(line.x2, line.y2), std::pair(x, y));
    }

    oLines& line(std::size_t position) { return *campaign.colLines->at(position); }
};
