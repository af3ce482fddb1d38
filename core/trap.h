#pragma once

#include "core/failure.h"
#include "core/program.h"

#include <exception>
#include <new>
#include <string>
#include <string_view>
#include <utility>

/// Runs a command or a part of it and answers the number of its failure, 0 when there was none. Too little
/// memory is a failure like any other.
template <class Body> int failure_of(Body&& body) {
    try {
        std::forward<Body>(body)();
    } catch (const Failure& failed) {
        return failed.number;
    } catch (const std::bad_alloc&) {
        return failure::out_of_memory;
    } catch (const std::exception&) {
        return failure::invalid_call; // of the library: nothing may run on through the window system's loop
    }
    return 0;
}

/// Shows "Error ", the number and the ending.
inline void show_failure(Program& program, int number, std::string_view ending, Icon icon = Icon::none) {
    program.platform.message({"Error " + std::to_string(number).append(ending), icon});
}

/// The trap of a command: a failure ends the body, its message is shown, and what was done so far stays.
template <class Body>
void trap(Program& program, std::string_view ending, Body&& body, Icon icon = Icon::none) {
    const int number = failure_of(std::forward<Body>(body));
    if (number != 0) show_failure(program, number, ending, icon);
}
