// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Which lock guards what, for compilers that check it. Elsewhere the annotations are nothing.
#pragma once

#if defined(__clang__)
#define KILN_THREAD_SAFETY(attribute) __attribute__((attribute))
#else
#define KILN_THREAD_SAFETY(attribute)
#endif

/** A class whose objects are locks. */
#define KILN_CAPABILITY KILN_THREAD_SAFETY(capability("mutex"))
/** A class whose objects hold a lock as long as they live. */
#define KILN_SCOPED_CAPABILITY KILN_THREAD_SAFETY(scoped_lockable)

/** A field is used with the lock held. */
#define KILN_GUARDED_BY(lock) KILN_THREAD_SAFETY(guarded_by(lock))

/** A function takes the lock, gives it back, or is called with it held; without argument, the object itself. */
#define KILN_ACQUIRE(...) KILN_THREAD_SAFETY(acquire_capability(__VA_ARGS__))
#define KILN_RELEASE(...) KILN_THREAD_SAFETY(release_capability(__VA_ARGS__))
#define KILN_REQUIRES(...) KILN_THREAD_SAFETY(requires_capability(__VA_ARGS__))
