// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
// The computer-audio driver's program. It ends with the sound server, or when its engine gets the quit property.
#include "Tools/CaptureDriver/Driver.h"
#include "Tools/OwnProcess.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv) {
    becomeAProcessOfItsOwn();
    pw_init(&argc, &argv);
    std::error_code error;
    const auto folder = std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
    std::ifstream file(folder / "driver.conf");
    const std::string configuration{std::istreambuf_iterator<char>(file), {}};
    Driver driver;
    if (!driver.start(configuration))
        return 1;
    if (argc > 1 && std::strcmp(argv[1], "--check") == 0)
        return 0; // check only: it can run, and nothing was created
    driver.run();
    return 0;
}
