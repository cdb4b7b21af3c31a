// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>

#include <QtCore/QMetaType>

// Of X11's headers.
#pragma push_macro("None")
#undef None

/// Refers to something of the document by its id; a value that owns nothing and may be kept.
/// What it refers to may go at any time; it is then null, and its operations answer as null does:
/// getters with the default, setters with nothing.
class NB_PLATFORM_API nbdObject
{
public:
    /// What kinds of things there are.
    enum class Kind : int
    {
        None,
        Node,
        CameraNode,
        PerspectiveMatch
    };

    /// A null object.
    nbdObject() = default;

    /// Whether it refers to nothing, or to something that is gone.
    bool isNull() const;

    explicit operator bool() const { return !isNull(); }

    /// Whether both refer to the same thing; all that refers to nothing is the same.
    bool isEqual(const nbdObject& other) const { return kind == other.kind && id == other.id; }

    Kind getKind() const { return kind; }

    /// Container id of the node that the thing is, or of which it is a part; 0 for none.
    osg::UInt32 getId() const { return id; }

protected:
    nbdObject(Kind what, osg::UInt32 nodeId)
        : kind(nodeId != 0 ? what : Kind::None)
        , id(nodeId)
    { }

private:
    Kind kind = Kind::None;
    osg::UInt32 id = 0;
};

Q_DECLARE_METATYPE(nbdObject)

#pragma pop_macro("None")
