// SPDX-License-Identifier: MIT
#pragma once

#include <OpenSG/OSGBaseTypes.h>
#include <OpenSG/OSGConfig.h>

#include <functional>

namespace osg {

class FieldContainer;
class FieldContainerType;

/// Type of NullFC.
struct NullFieldContainerPtr
{ };

/// The null of every container pointer: `node = NullFC`, `node == NullFC`.
inline constexpr NullFieldContainerPtr NullFC {};

/// Masks that are no single field.
struct FieldBits
{
    static constexpr BitVector NoField = 0;
    static constexpr BitVector AllFields = ~BitVector(0);
};

/// Who made an edit; the second argument of `changed`. The subset passes it on and gives it no
/// meaning.
struct ChangedOrigin
{
    enum : UInt32
    {
        Abstract = 0x01,
        Sync = 0x02,
        Child = 0x04,
        External = 0x08
    };
};

/// Plain handle of a container of any type. It owns nothing: what keeps a container alive are the
/// counts that addRefCP, RefPtr and owning containers take. One pointer in size.
/// Left out of real OpenSG: aspects of threads, parent entry positions.
class FieldContainerPtr
{
public:
    using StoredObjectType = FieldContainer;

    constexpr FieldContainerPtr() = default;

    constexpr FieldContainerPtr(const NullFieldContainerPtr&) { }

    explicit FieldContainerPtr(const FieldContainer* object)
        : target(const_cast<FieldContainer*>(object))
    { }

    explicit FieldContainerPtr(const FieldContainer& object)
        : FieldContainerPtr(&object)
    { }

    /// Cast that checks nothing because every container is a FieldContainer.
    static FieldContainerPtr dcast(const FieldContainerPtr& source) { return source; }

    /// Undefined on null, as in OpenSG.
    FieldContainer* operator->() const { return target; }

    FieldContainer& operator*() const { return *target; }

    FieldContainer* getCPtr() const { return target; }

    /// Count of holders; 0 on null.
    Int32 getRefCount() const;

    /// Id of the container, never 0. Undefined on null, as in OpenSG.
    UInt32 getFieldContainerId() const;

    explicit operator bool() const { return target != nullptr; }

    bool operator!() const { return target == nullptr; }

    friend bool operator==(const FieldContainerPtr& a, const FieldContainerPtr& b)
    {
        return a.target == b.target;
    }

    friend bool operator!=(const FieldContainerPtr& a, const FieldContainerPtr& b)
    {
        return a.target != b.target;
    }

    friend bool operator==(const FieldContainerPtr& a, const NullFieldContainerPtr&)
    {
        return a.target == nullptr;
    }

    friend bool operator!=(const FieldContainerPtr& a, const NullFieldContainerPtr&)
    {
        return a.target != nullptr;
    }

    friend bool operator==(const NullFieldContainerPtr&, const FieldContainerPtr& a)
    {
        return a.target == nullptr;
    }

    friend bool operator!=(const NullFieldContainerPtr&, const FieldContainerPtr& a)
    {
        return a.target != nullptr;
    }

    /// For `pointer == NULL`.
    friend bool operator==(const FieldContainerPtr& a, const void* object)
    {
        return a.target == object;
    }

    friend bool operator!=(const FieldContainerPtr& a, const void* object)
    {
        return a.target != object;
    }

    /// Order of addresses.
    friend bool operator<(const FieldContainerPtr& a, const FieldContainerPtr& b)
    {
        return std::less<const FieldContainer*>()(a.target, b.target);
    }

protected:
    /// The object if it is of the type or derived from it, otherwise null. A template, because the
    /// class is not complete here.
    template <class Container>
    static Container* checked(Container* object, const FieldContainerType& type)
    {
        return object != nullptr && object->getType().isDerivedFrom(type) ? object : nullptr;
    }

    FieldContainer* target = nullptr;
};

/// What all typed pointers share: Base is the pointer of the base class, Object the container
/// class, Self the pointer class itself. Object may be incomplete until a pointer to it is
/// followed.
template <class Base, class Object, class Self>
class TypedContainerPtr : public Base
{
public:
    using StoredObjectType = Object;

    TypedContainerPtr() = default;

    TypedContainerPtr(const NullFieldContainerPtr&) { }

    explicit TypedContainerPtr(const Object* object) { this->target = const_cast<Object*>(object); }

    explicit TypedContainerPtr(const Object& object)
        : TypedContainerPtr(&object)
    { }

    /// Checked cast; NullFC for null and for a container of another type.
    static Self dcast(const FieldContainerPtr& source)
    {
        return Self(static_cast<Object*>(
            FieldContainerPtr::checked(source.getCPtr(), Object::getClassType())));
    }

    Object* operator->() const { return static_cast<Object*>(this->target); }

    Object& operator*() const { return *static_cast<Object*>(this->target); }

    Object* getCPtr() const { return static_cast<Object*>(this->target); }
};

/// Pointer to containers of class Object whose base class has the pointer Base.
template <class Base, class Object>
class FCPtr : public TypedContainerPtr<Base, Object, FCPtr<Base, Object>>
{
public:
    using TypedContainerPtr<Base, Object, FCPtr>::TypedContainerPtr;

    FCPtr() = default;
};

// == Counting

/// Takes one count. Null is accepted.
void addRefCP(const FieldContainerPtr& container);

/// Gives one count back; destroys the container when it falls to 0 or below. Null is accepted.
void subRefCP(const FieldContainerPtr& container);

/// The same; a pointer variable whose container was destroyed becomes null.
void subRefCP(FieldContainerPtr& container);

/// Gives one count back and sets the variable to null.
void clearRefCP(FieldContainerPtr& container);

/// Has the variable hold another container, which may be of a derived class or NullFC: counts the
/// new one, then gives the old one back.
template <class Pointer, class Value>
void setRefdCP(Pointer& variable, const Value& value)
{
    const Pointer wanted(value);
    if (variable == wanted) {
        return;
    }
    const Pointer old = variable;
    addRefCP(wanted);
    variable = wanted;
    subRefCP(old);
}

// == Edits

/// Announces an edit. Setters write at once and need no announcement; null is accepted.
inline void beginEditCP(const FieldContainerPtr& /*container*/,
                        BitVector /*whichField*/ = FieldBits::AllFields,
                        UInt32 /*origin*/ = ChangedOrigin::External)
{ }

/// Reports a change without an edit around it.
void changedCP(const FieldContainerPtr& container, BitVector whichField = FieldBits::AllFields,
               UInt32 origin = ChangedOrigin::External);

/// Ends an edit: counts the change (see OSGChangeCount.h) and calls `changed`. Null is accepted.
inline void endEditCP(const FieldContainerPtr& container,
                      BitVector whichField = FieldBits::AllFields,
                      UInt32 origin = ChangedOrigin::External)
{
    changedCP(container, whichField, origin);
}

/// Ends an edit without any reaction: nothing is counted, `changed` is not called.
inline void endEditNotChangedCP(const FieldContainerPtr& /*container*/,
                                BitVector /*whichField*/ = FieldBits::AllFields,
                                UInt32 /*origin*/ = ChangedOrigin::External)
{ }

/// An edit that lasts to the end of the scope; made by CPEdit and CPEditAll.
class CPEditor
{
public:
    explicit CPEditor(const FieldContainerPtr& edited, BitVector mask = FieldBits::AllFields)
        : container(edited)
        , whichField(mask)
    {
        beginEditCP(container, whichField);
    }

    ~CPEditor() { endEditCP(container, whichField); }

    CPEditor(const CPEditor&) = delete;
    CPEditor& operator=(const CPEditor&) = delete;

private:
    FieldContainerPtr container;
    BitVector whichField;
};

}  // namespace osg

/// Edits until the end of the scope; the pointer must be a plain identifier.
#define CPEdit(pointer, mask) const osg::CPEditor pointer##Editor(pointer, mask)
#define CPEditAll(pointer) const osg::CPEditor pointer##Editor(pointer)

#include <OpenSG/OSGFieldContainer.h>
#include <OpenSG/OSGFieldContainerType.h>
