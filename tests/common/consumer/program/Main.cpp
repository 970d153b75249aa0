// Copyright 2026 Vantor. SPDX-License-Identifier: MIT
// Prints the details of the program's own file and the names beside it.
#include <boost/filesystem.hpp>
#include <iostream>
#include <kiln/FileDetails.h>
#include <kiln/Folders.h>
#include <kiln/Paths.h>

int main(int, char** arguments)
{
	try
	{
		const std::string program = Kiln::absolutePath(arguments[0]);
		Kiln::FileDetails(program).serialize(std::cout);
		const auto names = Kiln::listFiles(Kiln::parentOf(program));
		for (const std::string& name : names.value())
		{
			std::cout << '\n' << name;
		}
		Kiln::listFiles(program);
	}
	catch (const boost::filesystem::filesystem_error& error)
	{
		std::cout << "\nerror: " << error.what() << '\n';
	}
}
