// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

class FEditorDriver;

namespace Bench
{
/** The one editor session of this process; it ends with the process. */
FEditorDriver& session();
} // namespace Bench
