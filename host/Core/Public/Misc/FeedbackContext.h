// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Misc/OutputDevice.h"

/** Takes what a long operation has to tell its user. */
class FFeedbackContext : public FOutputDevice
{
};
