// Repainting the map with everything on, against the same figures drawn without any of the program.

#include "benchmarks/bare_figures.h"
#include "benchmarks/graphics_scene.h"
#include "benchmarks/ratios.h"
#include "mapview/map_mouse.h"
#include "mapview/painting.h"
#include "mapview/selection.h"
#include "mapview/unit_info.h"
#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"
#include "program/press_order.h"
#include "tools/support/paint_watch.h"
#include "tools/support/spread_campaign.h"
#include "widgets/map_image.h"

#include <QApplication>
#include <QImage>
#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <memory>
#include <vector>

namespace {

constexpr QSize view_size(1900, 1000);
constexpr int largest = 32767;
constexpr Bounds everywhere{-1e6, -1e6, 1e6, 1e6};
constexpr Bounds middle_of_largest{16000, 16000, 16000.0 + 1900, 16000.0 + 1000};

/// A started program whose view is as large as the benchmarks want it.
struct Scene {
    explicit Scene(int side = 0)
        : platform(PROGRAM_DIRECTORY), program(platform, paint_order(), tool_order()) {
        platform.serve(program);
        program.campaign.gAppPath = PROGRAM_DIRECTORY;
        program.form<frmStart>().tmrTimer_Timer();
        if (side != 0) {
            // Only what is in view is ever touched, so most of this takes no memory.
            program.main.picMap.picture =
                std::make_shared<MapImage>(QImage(side, side, QImage::Format_RGB888), QImage(), QImage());
            program.main.picMap.width = program.main.picMap.height = side;
        }
        window()->showNormal();
        window()->resize(view_size + QSize(278, 160));
        QApplication::processEvents();
        view = window()->findChild<QWidget*>("picMapwindow");
        window()->resize(window()->size() + view_size - view->size() + QSize(4, 4));
        QApplication::processEvents();
    }

    void spread(const Spread& what, const Bounds& area = everywhere) { spread_over_map(program, what, area); }
    void scroll_to(double x, double y) {
        program.main.picMap.left = -x;
        program.main.picMap.top = -y;
    }
    QMainWindow* window() { return platform.main_window(); }
    /// What follows every change of the campaign: all layers, then the view.
    void repaint() {
        program.main.picMap.Refresh();
        paint_if_marked(program);
        view->render(&image);
    }

    QtPlatform platform;
    Program program;
    QWidget* view = nullptr;
    QImage image{view_size, QImage::Format_RGB32};
};

std::map<std::string, std::unique_ptr<Scene>> scenes; // go before the application does

template <class Make> Scene& scene(const std::string& name, Make make) {
    std::unique_ptr<Scene>& held = scenes[name];
    if (!held) held = make();
    return *held;
}

Scene& full_scene() {
    return scene("full", [] {
        auto made = std::make_unique<Scene>();
        made->spread({1000, 1000, 200, 200});
        made->scroll_to(1500, 2500);
        return made;
    });
}

Scene& largest_scene(bool only_in_view) {
    return scene(only_in_view ? "in view" : "largest", [&] {
        auto made = std::make_unique<Scene>(largest);
        made->spread({10000, 10000, 0, 0}, only_in_view ? middle_of_largest : everywhere);
        made->scroll_to(middle_of_largest.left, middle_of_largest.top);
        return made;
    });
}

/// Ten thousand units over the largest map, with the display options that the program starts with, or the
/// hundred of them around the view.
Scene& unit_scene(bool only_near) {
    return scene(only_near ? "near units" : "all units", [&] {
        auto made = std::make_unique<Scene>(largest);
        made->spread({10000, 0, 0, 0}, only_near ? middle_of_largest.grown_by(450) : everywhere);
        static_cast<DisplayOptions&>(made->program.campaign) = DisplayOptions{};
        made->scroll_to(middle_of_largest.left, middle_of_largest.top);
        return made;
    });
}

void full_repaint(benchmark::State& state) {
    for (auto _ : state) full_scene().repaint();
}

void bare_repaint(benchmark::State& state) {
    Scene& s = full_scene();
    s.repaint();
    const BareFigures bare(s.program, view_size);
    for (auto _ : state) bare.draw(s.image);
}

void scene_repaint(benchmark::State& state) {
    Scene& s = full_scene();
    const auto graphics = graphics_scene(s.program);
    for (auto _ : state) paint_graphics_scene(*graphics, s.program, s.image);
}

void largest_repaint(benchmark::State& state) {
    Scene& s = largest_scene(state.range(0) == 1);
    for (auto _ : state) s.repaint();
}

void send_mouse(Scene& s, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QMouseEvent event(type, at, s.view->mapToGlobal(at), button, buttons, modifiers);
    QApplication::sendEvent(s.view, &event);
}

QPointF in_view(const Scene& s, const oUnits& unit) {
    const frmMain& main = s.program.main;
    return {unit.xcoord + main.picMap.left + main.picMapwindow.border,
            unit.ycoord + main.picMap.top + main.picMapwindow.border};
}

/// The first units whose markers are well in view and nothing over them.
std::vector<oUnits*> units_in_view(Scene& s, std::size_t count) {
    std::vector<oUnits*> found;
    for (const auto& unit : s.program.campaign.colUnits) {
        const QPointF at = in_view(s, *unit);
        if (!QRectF(QPointF(50, 50), QSizeF(1800, 900)).contains(at)) continue;
        if (hit_target(s.program, unit->xcoord, unit->ycoord).index == unit->img_index)
            found.push_back(unit.get());
        if (found.size() == count) return found;
    }
    throw std::runtime_error("too few units are in view");
}

void drag_step(benchmark::State& state) {
    Scene& s = full_scene();
    const oUnits& unit = *units_in_view(s, 1).front();
    clear_selection(s.program);
    int selected = 1;
    select_unit(s.program, s.program.campaign.colUnits->item(unit.ID));
    for (const auto& other : s.program.campaign.colUnits)
        if (other.get() != &unit && selected++ < 100) select_unit(s.program, other);
    QPointF at = in_view(s, unit);
    send_mouse(s, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton, Qt::ShiftModifier);
    double step = 3;
    for (auto _ : state) {
        step = -step;
        at += QPointF(step, step);
        send_mouse(s, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton, Qt::ShiftModifier);
        s.view->render(&s.image);
    }
    if (!s.program.main.dragging) report_wrong("nothing was dragged");
    send_mouse(s, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    clear_selection(s.program);
}

void press_to_panel(benchmark::State& state) {
    Scene& s = unit_scene(state.range(0) != 10000);
    state.counters["units"] = static_cast<double>(s.program.campaign.colUnits.count());
    // Two by turns, so that the panel shows another one each time.
    const std::vector<oUnits*> units = units_in_view(s, 2);
    std::size_t presses = 0;
    QPointF at;
    const auto press = [&] {
        at = in_view(s, *units[presses++ % units.size()]);
        send_mouse(s, QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
        QApplication::processEvents(); // lays the panel out, then paints
    };
    const auto release = [&] {
        send_mouse(s, QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
        QApplication::processEvents();
    };
    press(); // on the first, which the panel may show already
    release();
    PaintWatch view(s.view);
    PaintWatch name(s.window()->findChild<QLabel*>("lblUIunitname"));
    for (auto _ : state) {
        press();
        state.PauseTiming();
        const bool painted = view.was_painted() && name.was_painted();
        const oUnits* const shown = s.program.campaign.curUnit.get();
        if (!painted || shown != units[(presses - 1) % units.size()]) report_wrong("a press was not painted");
        release();
        view.was_painted(); // what the release paints is not the press's
        name.was_painted();
        state.ResumeTiming();
    }
}

} // namespace

BENCHMARK(full_repaint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(bare_repaint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(scene_repaint)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(drag_step)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(largest_repaint)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(press_to_panel)->Arg(100)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int only_the_name = 1;
    const QApplication application(only_the_name, argv);
    QImageReader::setAllocationLimit(0);
    const int result = run_with_ratios(
        argc, argv,
        {{"full repaint / its figures in view, bare", "full_repaint", "bare_repaint", 1.3},
         {"full repaint / a graphics scene of the same", "full_repaint", "scene_repaint", 0.5},
         {"largest map, 10,000 units / only those in view", "largest_repaint/0", "largest_repaint/1", 1.3},
         {"a step of a group's drag / a full repaint", "drag_step", "full_repaint", 1.1},
         {"press to panel, 10,000 units / 100 units", "press_to_panel/10000", "press_to_panel/100", 1.3}});
    scenes.clear();
    return result;
}
