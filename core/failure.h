#pragma once

/// The one way in which a procedure fails: a number that the command's trap turns into its message.
struct Failure {
    int number;
};

/// The numbers that the program's rules raise or test. They are part of the messages users know.
namespace failure {
inline constexpr int invalid_call = 5; // also: key absent from a collection
inline constexpr int overflow = 6;
inline constexpr int out_of_memory = 7;
inline constexpr int no_such_position = 9;
inline constexpr int type_mismatch = 13;
inline constexpr int out_of_stack = 28; // links in a circle
inline constexpr int file_not_found = 53;
inline constexpr int device_error = 57;
inline constexpr int disk_full = 61;
inline constexpr int past_end_of_file = 62;
inline constexpr int path_access = 75;
inline constexpr int path_not_found = 76;
inline constexpr int no_object = 91; // nothing is selected
inline constexpr int no_such_control = 340;
inline constexpr int key_present = 457;
inline constexpr int invalid_picture = 481;
inline constexpr int cancelled = 32755;
} // namespace failure
