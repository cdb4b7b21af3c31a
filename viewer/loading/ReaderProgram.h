// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace viewer {

/// The program that reads and writes models: beside this one, as when both have just been built, or
/// where it is installed to.
QString readerProgram();

}  // namespace viewer
