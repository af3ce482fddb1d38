#include "tests/memory/scarce_memory.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace {

constexpr long never = -1;

long good_ones_left = never;
bool has_failed = false;

bool is_due_to_fail() {
    if (good_ones_left == never || good_ones_left-- > 0) return false;
    has_failed = true;
    return true; // and those behind it do not: what is left of the count is below 0, as never
}

void* allocate(std::size_t size) { return is_due_to_fail() ? nullptr : std::malloc(size); }

void* allocate(std::size_t size, std::align_val_t alignment) {
    const auto step = static_cast<std::size_t>(alignment);
    return is_due_to_fail() ? nullptr : std::aligned_alloc(step, (size + step - 1) / step * step);
}

void* or_throw(void* memory) {
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

} // namespace

void let_allocation_fail(long good_ones_before) {
    has_failed = false;
    good_ones_left = good_ones_before;
}

bool end_scarcity() {
    good_ones_left = never;
    return std::exchange(has_failed, false);
}

// Each of these ends at the same allocator, also where another library has replaced the usual ones.
void* operator new(std::size_t size) { return or_throw(allocate(size)); }
void* operator new[](std::size_t size) { return or_throw(allocate(size)); }
void* operator new(std::size_t size, std::align_val_t alignment) {
    return or_throw(allocate(size, alignment));
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept { return allocate(size); }

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t /*size*/) noexcept { std::free(memory); }
void operator delete(void* memory, std::align_val_t /*alignment*/) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t /*size*/, std::align_val_t /*alignment*/) noexcept {
    std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*tag*/) noexcept { std::free(memory); }
