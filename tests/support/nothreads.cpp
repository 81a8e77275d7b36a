// SPDX-FileCopyrightText: 2026 The Zelto viewer components authors
// SPDX-License-Identifier: MIT

#include "nothreads.h"

#include <atomic>
#include <cerrno>

#include <dlfcn.h>
#include <pthread.h>

namespace {

std::atomic_bool isNoneLeft = false;

}

// Found before the one of the C library, by all other libraries as well.
extern "C" int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*routine)(void *),
                              void *argument)
{
    static const auto create =
        reinterpret_cast<decltype(&pthread_create)>(dlsym(RTLD_NEXT, "pthread_create"));
    return isNoneLeft ? EAGAIN : create(thread, attributes, routine, argument);
}

NoThreads::NoThreads()
{
    isNoneLeft = true;
}

NoThreads::~NoThreads()
{
    isNoneLeft = false;
}
