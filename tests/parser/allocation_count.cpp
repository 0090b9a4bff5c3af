// SPDX-License-Identifier: GPL-3.0-or-later
#include "allocation_count.h"

#include <cstdlib>
#include <new>

namespace {
int allocationCount = 0;
}

void* operator new(std::size_t size) {
    ++allocationCount;
    void* memory = std::malloc(size > 0 ? size : 1);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

int kelvra::parser::AllocationCount() {
    return allocationCount;
}
