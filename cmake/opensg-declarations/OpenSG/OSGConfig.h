// SPDX-License-Identifier: MIT
#pragma once
#define OSG osg
#define OSG_BEGIN_NAMESPACE namespace osg {
#define OSG_END_NAMESPACE }
#define OSG_USING_NAMESPACE using namespace osg;
#define OSG_MAJOR_VERSION 1
#define OSG_MINOR_VERSION 8
#define OSG_RELEASE_VERSION 0

namespace osg { }
