// SPDX-License-Identifier: MIT
#pragma once

#include <nbKernelServices/nbdObject.h>
#include <nbUtils/nbPlatformExport.h>

#include <QtCore/QByteArray>
#include <QtCore/QObject>

/// Tells those who are interested that a property of a thing of the document has another value,
/// whoever changed it, undo and redo included. Found through nbKernelServiceFactory.
/// Belongs to the user-interface thread.
class NB_PLATFORM_API nbObjectService : public QObject
{
    Q_OBJECT

public:
    explicit nbObjectService(QObject* parent = nullptr);

    /// Has the service that is registered at the moment, if any, emit propertyChanged.
    static void notify(const nbdObject& object, const QByteArray& property);

Q_SIGNALS:
    /// @param object    what has changed, see nbdObject::getKind
    /// @param property  its name, as the setter's documentation gives it
    void propertyChanged(const nbdObject& object, const QByteArray& property);
};
