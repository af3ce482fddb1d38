#pragma once

#include "core/campaign.h"
#include "core/changes.h"
#include "core/drawing_list.h"
#include "core/form.h"
#include "core/frmMain.h"
#include "core/platform.h"
#include "core/press.h"

#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

struct Program;

/// The pens of all surfaces.
struct Pens {
    Pen map;
    Pen hcoord;
    Pen vcoord;
    Pen overview;

    bool operator==(const Pens&) const = default;
};

/// The lines as the overview shows them. Most paints find them as they were: they are drawn anew only when
/// what they were drawn from is no longer the same.
struct OverviewLines {
    struct Line {
        const oLines* line;
        std::int32_t colour;
        int style;

        bool operator==(const Line&) const = default;
    };
    struct Source {
        std::vector<Line> lines;
        std::uint64_t corner_changes = 0;
        double ratio = 0; // of the overview to the map
        Pen pen;

        bool operator==(const Source&) const = default;
    };

    Source source;
    std::shared_ptr<const DrawingList> figures;
};

/// The routes and the areas of operation of all units, side by side: a paint goes over thousands of those
/// that are out of view.
struct UnitPlans {
    struct Plan {
        const oUnits* unit;
        SmallBounds bounds; // on the map, with all that is drawn of it
    };

    std::vector<Plan> routes;
    std::vector<Plan> areas;
};

/// The artillery pieces of a unit with their entries of the catalogue.
struct UnitFans {
    struct Piece {
        const oUnitForceElements* element;
        const oForceElements* entry;
    };

    const oUnits* unit;
    std::vector<Piece> pieces;
    int failure = 0; // of the element behind them that the catalogue lacks, 0 when these are all
};

/// What the layers draw on. The overview's and the rulers' pens are their own.
struct Painting {
    DrawingList map;
    DrawingList hcoord;
    DrawingList vcoord;
    DrawingList overview;
    OverviewLines overview_lines;
    Kept<UnitPlans, 3> unit_plans;
    Kept<std::vector<UnitFans>, 3> units_with_fans;
    Kept<std::vector<const oUnits*>, 3> units_of_markers; // by the marker's index
    Pens began_with;                                      // as they stood before the first layer
    int firefan_failure = 0;                              // fans have a message of their own
    long number = 0;                                      // counts the paints

    Pens pens() const { return {map.pen, hcoord.pen, vcoord.pen, overview.pen}; }
    void set_pens(const Pens& pens) {
        map.pen = pens.map;
        hcoord.pen = pens.hcoord;
        vcoord.pen = pens.vcoord;
        overview.pen = pens.overview;
    }
};

/// One layer of the map: it is painted when its gate is open, above all layers before it.
struct PaintLayer {
    int number;
    bool (*gate)(const Program& program);
    void (*paint)(Program& program, Painting& painting);
};

/// The one program of the process: its campaign, its main window and its way to the outside.
struct Program {
    Program(Platform& platform, std::span<const PaintLayer> paint_order, const ToolOrder& tool_order = {})
        : platform(platform), paint_order(paint_order), tool_order(tool_order) {}
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    /// The form of this type, loaded if need be.
    template <class F> F& form() {
        std::unique_ptr<Form>& held = forms[F::form_name];
        if (held && !held->loaded) retired.push_back(std::exchange(held, nullptr));
        if (!held) held = std::make_unique<F>(*this);
        return static_cast<F&>(*held);
    }

    /// Unloads the form of this name if it is loaded.
    void unload(const std::string& name) {
        const auto held = forms.find(name);
        if (held != forms.end() && held->second->loaded) held->second->unload();
    }

    Platform& platform;
    std::span<const PaintLayer> paint_order;
    ToolOrder tool_order;
    Campaign campaign;
    frmMain main;
    Painting painting; // what the last refresh drew
    std::map<std::string, std::unique_ptr<Form>> forms;
    std::vector<std::unique_ptr<Form>> retired; // unloaded and replaced, perhaps by a procedure of their own
};
