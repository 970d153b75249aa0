// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// A JSON document as a tree of elements that can be built, changed and compared.
#pragma once

#include <cajun/json/detail/values.h>

#include <cajun/json/detail/unknown_element.h>

#include <cajun/json/detail/array.h>
#include <cajun/json/detail/object.h>

#include <cajun/json/detail/container_members.h>
#include <cajun/json/detail/deep_operations.h>
#include <cajun/json/detail/unknown_element_members.h>
