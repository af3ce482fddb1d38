#include "tools/campaign/formations.h"

#include "core/files.h"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sstream>

namespace {

struct Line {
    std::size_t indent = 0;
    std::string text;
};

using Lines = std::vector<Line>;

struct Side {
    std::string side;
    std::string nationality;
    std::int32_t colour = 0;
};

std::string trimmed(const std::string& text) {
    const std::size_t from = text.find_first_not_of(' ');
    if (from == std::string::npos) return "";
    return text.substr(from, text.find_last_not_of(' ') - from + 1);
}

/// Cuts the part behind the mark off the text and answers it.
std::string cut_behind(std::string& text, const std::string& mark) {
    const std::size_t at = text.find(mark);
    if (at == std::string::npos) return "";
    std::string rest = trimmed(text.substr(at + mark.size()));
    text = trimmed(text.substr(0, at));
    return rest;
}

Lines read_lines(const std::string& file) {
    std::ifstream in(file);
    Lines lines;
    for (std::string text; std::getline(in, text);) {
        const std::string content = trimmed(files::from_disk_name(text)); // the catalogue's characters
        if (content.empty() || content.front() == '#') continue;
        lines.push_back({text.find_first_not_of(' '), content});
    }
    return lines;
}

std::string ordinal(const std::string& number) {
    const char last = number.back();
    const bool teen = number.size() > 1 && number[number.size() - 2] == '1';
    if (teen || last == '0' || last > '3') return number + "th";
    return number + (last == '1' ? "st" : last == '2' ? "nd" : "rd");
}

class OrderOfBattle {
  public:
    explicit OrderOfBattle(const Lines& lines) {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            std::string text = lines[i].text;
            if (text.starts_with("template ")) {
                current = &templates[text.substr(9)];
            } else if (lines[i].indent == 0) {
                current = &top;
                current->push_back(lines[i]);
            } else {
                current->push_back(lines[i]);
            }
        }
    }

    std::vector<Formation> formations() {
        std::vector<Formation> found;
        block(top, 0, 0, {}, found, {});
        return found;
    }

  private:
    /// Reads the lines of one indentation, from `at` on, into the formations. Answers where it stopped.
    std::size_t block(const Lines& lines, std::size_t at, std::size_t indent, Side side,
                      std::vector<Formation>& into, const std::vector<std::string>& numbers) {
        while (at < lines.size() && lines[at].indent >= indent) {
            std::string text = lines[at].text;
            ++at;
            if (text.starts_with("side ")) {
                std::istringstream in(text.substr(5));
                in >> side.side >> side.nationality >> side.colour;
            } else if (text.starts_with("= ")) {
                use(text.substr(2), side, into);
            } else {
                at = unit(lines, at, indent, text, side, into, numbers);
            }
        }
        return at;
    }

    void use(std::string name, const Side& side, std::vector<Formation>& into) {
        std::istringstream listed(cut_behind(name, ":"));
        std::vector<std::string> numbers;
        for (std::string number; listed >> number;) numbers.push_back(number);
        const Lines& content = templates.at(name);
        block(content, 0, content.front().indent, side, into, numbers);
    }

    std::size_t unit(const Lines& lines, std::size_t at, std::size_t indent, std::string text,
                     const Side& side, std::vector<Formation>& into,
                     const std::vector<std::string>& numbers) {
        Formation formation;
        std::istringstream placed(cut_behind(text, "@"));
        Deployment& where = formation.deployment;
        formation.deployed =
            static_cast<bool>(placed >> where.east >> where.north >> where.width >> where.facing);
        formation.name = cut_behind(text, "|");
        const std::string content = cut_behind(text, "= ");
        formation.side = side.side;
        formation.nationality = side.nationality;
        formation.colour = side.colour;
        if (!content.empty()) use(content, side, formation.children);
        if (at < lines.size() && lines[at].indent > indent)
            at = block(lines, at, lines[at].indent, side, formation.children, numbers);
        std::vector<std::string> names{formation.name};
        if (text.starts_with("? ")) {
            text = text.substr(2);
            names.clear();
            for (const std::string& number : numbers) names.push_back(ordinal(number));
        } else if (const std::size_t times = text.find(" x "); times != std::string::npos) {
            names.assign(std::stoul(text.substr(0, times)), "");
            text = text.substr(times + 3);
        }
        formation.type = text;
        for (const std::string& name : names) {
            formation.name = name;
            into.push_back(formation);
        }
        return at;
    }

    std::map<std::string, Lines> templates;
    Lines top;
    Lines* current = nullptr;
};

} // namespace

std::vector<Formation> read_order_of_battle(const std::string& file) {
    return OrderOfBattle(read_lines(file)).formations();
}

std::map<std::string, std::vector<Holding>> read_holdings(const std::string& file) {
    std::map<std::string, std::vector<Holding>> holdings;
    for (const Line& line : read_lines(file)) {
        std::string type = line.text;
        std::istringstream listed(cut_behind(type, ":"));
        for (std::string item; std::getline(listed, item, ';');) {
            const std::size_t times = item.rfind(" x");
            holdings[type].push_back({trimmed(item.substr(0, times)), std::stoi(item.substr(times + 2))});
        }
    }
    return holdings;
}
