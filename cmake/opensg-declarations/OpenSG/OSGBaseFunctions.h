// SPDX-License-Identifier: MIT
#pragma once
#include <OpenSG/OSGBaseTypes.h>

namespace osg {
bool osgInit(Int32 argc, Char8** argv, UInt16 major = 1, UInt16 minor = 8, UInt16 release = 0,
             bool debug = false, bool debugNoStaticInit = false);
bool osgExit(void);
template <class V>
const V& osgMin(const V& a, const V& b);
template <class V>
const V& osgMax(const V& a, const V& b);
template <class V>
const V& osgClamp(const V& low, const V& value, const V& high);
template <class V>
V osgabs(const V value);
template <class V>
V osgsqrt(const V value);
template <class V>
V osgpow(const V base, const V exponent);
template <class V>
V osgsin(const V value);
template <class V>
V osgcos(const V value);
template <class V>
V osgtan(const V value);
template <class V>
V osgacos(const V value);
template <class V>
V osgasin(const V value);
template <class V>
V osgatan2(const V y, const V x);
template <class V>
V osgfloor(const V value);
template <class V>
V osgceil(const V value);
template <class V>
int osgfinite(const V value);
template <class V>
V osgdegree2rad(const V value);
template <class V>
V osgrad2degree(const V value);
}  // namespace osg
