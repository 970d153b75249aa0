// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
#pragma once

#include "Host/Transactions.h"
#include "Internationalization/Text.h"

/** What objects keep meanwhile, by Modify, can be taken back as one step. */
class FScopedTransaction
{
public:
	explicit FScopedTransaction(const FText&, const bool bShouldActuallyTransact = true)
	{
		HostTransactions::Begin(bShouldActuallyTransact);
	}

	~FScopedTransaction() { HostTransactions::End(); }
};
