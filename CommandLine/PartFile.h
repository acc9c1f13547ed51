// SPDX-FileCopyrightText: 2026 The Sonaphex authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Platform/Foundation/ReplacementFile.h"

namespace CommandLine {

/// A hidden file beside a target that takes the target's name when it is whole, and is removed when it is not.
class PartFile {
public:
    /// @p overwrite lets it replace a file of that name at the end; otherwise such a file is kept and is a problem.
    PartFile(const QString& target, bool overwrite);

    /// Why nothing can be written to the target as things stand; empty when nothing stands in the way.
    [[nodiscard]] QString problem() const;
    /// Where to write. Ends like the target, because writers judge a file by its ending.
    [[nodiscard]] QString path() const { return file_.path(); }
    /// Gives the written file its name. @return what went wrong, empty when nothing did
    [[nodiscard]] QString commit();

private:
    QString target_;
    bool overwrite_;
    Platform::ReplacementFile file_;
};

} // namespace CommandLine
