#pragma once

#include "core/map_records.h"

#include <cstddef>
#include <memory>
#include <unordered_map>

/// The test that keeps a file that is loaded twice from doubling its lines. A line counts as present when its
/// vertices equal those of the first line with as many vertices; no other line is looked at, nor any style.
class LineDuplicates {
  public:
    explicit LineDuplicates(const Collection<oLines>& present) {
        for (const auto& line : present) remember(line);
    }

    bool is_present(const oLines& line) const {
        const auto first = first_of_length.find(line.colCoords.count());
        return first != first_of_length.end() && same_vertices(*first->second, line);
    }

    void remember(const std::shared_ptr<oLines>& line) {
        first_of_length.emplace(line->colCoords.count(), line);
    }

  private:
    static bool same_vertices(const oLines& a, const oLines& b) {
        for (std::size_t i = 1; i <= a.colCoords.count(); ++i) {
            const oCoordinates& one = *a.colCoords->at(i);
            const oCoordinates& other = *b.colCoords->at(i);
            if (one.x_cor != other.x_cor || one.y_cor != other.y_cor) return false;
        }
        return true;
    }

    std::unordered_map<std::size_t, std::shared_ptr<oLines>> first_of_length;
};
