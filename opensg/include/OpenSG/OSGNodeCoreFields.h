// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGNodeCorePtr.h>
