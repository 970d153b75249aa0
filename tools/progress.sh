# Copyright 2026 Vantor. SPDX-License-Identifier: MIT
# Sourced by the set-up scripts.

# aptWithProgress SUBJECT LOG ARGUMENT...: runs apt-get, its output goes to the end of LOG.
# Prints a line for every further quarter of the download and of the installation; no control characters.
aptWithProgress()
{
	local subject=$1 log=$2
	shift 2
	apt-get -o APT::Status-Fd=3 -o Dpkg::Use-Pty=0 -o DPkg::Lock::Timeout=300 "$@" 3>&1 >>"$log" 2>&1 </dev/null |
		awk -F: -v subject="$subject" '
			BEGIN { step["dlstatus"] = "downloaded"; step["pmstatus"] = "installed" }
			$1 in step && int($3 / 25) > done[$1] {
				done[$1] = int($3 / 25)
				printf "setup: %s %s, %d %%\n", subject, step[$1], 25 * done[$1]
				fflush()
			}'
}
