// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

class IProbeModule;

/** Adds the sub-menu "Probe" to the menu of every pane, with a widget whose menu has a toggle and an asset picker. */
void RegisterProbeMenu(IProbeModule& Owner);
