// SPDX-License-Identifier: MIT
#include "nbKernelServiceFactory.h"

#include <nbKernelServices/nbObjectService.h>

#include <boost/core/demangle.hpp>

#include <cstdio>

nbKernelServiceFactory& nbKernelServiceFactory::the()
{
    static nbKernelServiceFactory factory;
    return factory;
}

nbKernelServiceFactory::nbKernelServiceFactory()
    : objectService(std::make_unique<nbObjectService>())
{
    registerService(objectService.get());
}

nbKernelServiceFactory::~nbKernelServiceFactory() = default;

void* nbKernelServiceFactory::lookUp(const std::type_info& type, bool isReported) const
{
    const auto found = services.find(type);
    if (found != services.end() && found->second != nullptr) {
        return found->second;
    }
    if (isReported) {
        const char* const format = found == services.end()
            ? "nbKernelServiceFactory: couldn't find class '%s'!\n"
            : "nbKernelServiceFactory: service '%s' is NULL!\n";
        std::fprintf(stderr, format, boost::core::demangle(type.name()).c_str());
    }
    return nullptr;
}
