// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Visitor and ConstVisitor: one operation for each kind of element; UnknownElement::Accept calls the one of the kind that it
// holds.
#pragma once

#include <cajun/json/elements.h>
