// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "allocation.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

void returnMemoryOfImages()
{
#ifdef __GLIBC__
    constexpr int largestInHeap = 256 * 1024;
    constexpr int heaps = 2;
    mallopt(M_MMAP_THRESHOLD, largestInHeap);
    mallopt(M_ARENA_MAX, heaps);
#endif
}
