// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGCoredNodePtr.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGNodeFields.h>
