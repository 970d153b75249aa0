// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

/** How many objects of operator new are not deleted yet, all threads taken together. */
long liveHeapObjects();
