// SPDX-License-Identifier: MIT
#include "nbObjectService.h"

#include <nbKernelServices/nbKernelServiceFactory.h>

nbObjectService::nbObjectService(QObject* parent)
    : QObject(parent)
{
    qRegisterMetaType<nbdObject>();
}

void nbObjectService::notify(const nbdObject& object, const QByteArray& property)
{
    nbObjectService* const service = nbKernelServiceFactory::the().find<nbObjectService>();
    if (service != nullptr) {
        Q_EMIT service->propertyChanged(object, property);
    }
}
