// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

class FEditorDriver;
class FTonalithDisplayManager;

namespace Bench
{
/** The one editor session of this process; it ends with the process. */
FEditorDriver& session();

/** The registry of the runtime module in that session. */
FTonalithDisplayManager& displayRecords();
} // namespace Bench
