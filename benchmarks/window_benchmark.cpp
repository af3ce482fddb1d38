// Start and scrolling of the real windows, on a platform without a screen.

#include "benchmarks/ratios.h"
#include "core/files.h"
#include "mapview/scrolling.h"
#include "mapview/unit_marker.h"
#include "platform/qt_platform.h"
#include "program/frmStart.h"
#include "program/paint_order.h"
#include "widgets/map_image.h"

#include <QApplication>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>

#include <jpeglib.h>

namespace {

const std::string map_path = std::string(PROGRAM_DIRECTORY) + "/map/velmora2.jpg";
constexpr QSize view_size(1900, 1000);

/// The same file into 32-bit pixels with nothing around it.
void bare_decode(benchmark::State& state) {
    for (auto _ : state) {
        const std::string bytes = files::read(map_path);
        jpeg_decompress_struct info{};
        jpeg_error_mgr errors{};
        info.err = jpeg_std_error(&errors);
        jpeg_create_decompress(&info);
        jpeg_mem_src(&info, reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
        jpeg_read_header(&info, TRUE);
        info.out_color_space = JCS_EXT_BGRX;
        jpeg_start_decompress(&info);
        QImage image(static_cast<int>(info.output_width), static_cast<int>(info.output_height),
                     QImage::Format_RGB32);
        while (info.output_scanline < info.output_height) {
            JSAMPROW row = image.scanLine(static_cast<int>(info.output_scanline));
            jpeg_read_scanlines(&info, &row, 1);
        }
        jpeg_finish_decompress(&info);
        jpeg_destroy_decompress(&info);
        benchmark::DoNotOptimize(image);
    }
}

/// From the splash's tick to the main window on screen.
void start(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto platform = std::make_unique<QtPlatform>(PROGRAM_DIRECTORY);
        auto program = std::make_unique<Program>(*platform, paint_order());
        platform->serve(*program);
        program->campaign.gAppPath = PROGRAM_DIRECTORY;
        auto& splash = program->form<frmStart>();
        state.ResumeTiming();
        splash.tmrTimer_Timer();
        platform->main_window()->grab(); // everything painted once
        state.PauseTiming();
        platform.reset();
        program.reset();
        state.ResumeTiming();
    }
}

/// A program with a thousand markers spread over the map, its view as large as the benchmark wants it.
struct Scene {
    Scene() : platform(PROGRAM_DIRECTORY), program(platform, paint_order()) {
        platform.serve(program);
        program.campaign.gAppPath = PROGRAM_DIRECTORY;
        program.form<frmStart>().tmrTimer_Timer();
        program.campaign.gShowGrid = true;
        for (int i = 0; i < 1000; ++i) {
            auto unit = std::make_shared<oUnits>();
            unit->ID = std::to_string(i);
            unit->symbol = "\\data\\forces\\allied forces\\Rifle Company.gif";
            unit->color = 5263615;
            unit->xcoord = static_cast<std::int16_t>(i * 7919 % 5400);
            unit->ycoord = static_cast<std::int16_t>(i * 6007 % 6100);
            program.campaign.colUnits->add(unit, unit->ID);
            make_unit_marker(program, *unit);
        }
        // The window that leaves this view for the map.
        window()->showNormal();
        window()->resize(view_size + QSize(278, 160));
        QApplication::processEvents();
        view = window()->findChild<QWidget*>("picMapwindow");
        window()->resize(window()->size() + view_size - view->size() + QSize(4, 4));
        QApplication::processEvents();
    }

    QMainWindow* window() { return platform.main_window(); }

    QtPlatform platform;
    Program program;
    QWidget* view = nullptr;
};

std::unique_ptr<Scene> only_scene; // goes before the application does

Scene& scene() {
    if (!only_scene) only_scene = std::make_unique<Scene>();
    return *only_scene;
}

void scroll_step(benchmark::State& state) {
    Scene& s = scene();
    double value = 0;
    for (auto _ : state) {
        value = value > 2000 ? 0 : value + 40;
        scroll_horizontally_to(s.program, value);
        s.view->repaint();
    }
}

void bare_copy(benchmark::State& state) {
    Scene& s = scene();
    const auto* const map = dynamic_cast<const MapImage*>(s.program.main.picMap.picture.get());
    QImage view(view_size, QImage::Format_RGB32);
    int value = 0;
    for (auto _ : state) {
        value = value > 2000 ? 0 : value + 40;
        QPainter painter(&view);
        painter.drawImage(QPoint(0, 0), map->map, QRect(QPoint(value, 0), view_size));
    }
}

} // namespace

BENCHMARK(bare_decode)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(start)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(scroll_step)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(bare_copy)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    int only_the_name = 1;
    const QApplication application(only_the_name, argv);
    QImageReader::setAllocationLimit(0);
    std::printf("view: %d x %d\n", scene().view->width(), scene().view->height());
    const int result =
        run_with_ratios(argc, argv,
                        {{"start to painted window / bare decode", "start", "bare_decode", 1.5},
                         {"scroll step / bare copy of the view", "scroll_step", "bare_copy", 3}});
    only_scene.reset();
    return result;
}
