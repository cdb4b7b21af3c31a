// SPDX-License-Identifier: MIT
#pragma once

#include <nbUtils/nbPlatformExport.h>

#include <memory>
#include <typeindex>
#include <unordered_map>

class nbObjectService;

/// Table of the host's services, keyed by their type. It owns none of those that are registered.
/// At the start it holds the nbObjectService of this host. Belongs to the user-interface thread.
class NB_PLATFORM_API nbKernelServiceFactory
{
public:
    /// The table of the process.
    static nbKernelServiceFactory& the();

    /// Registers the service of a type, in the place of an earlier one.
    /// @param service  null: the type is known but there is no service; must outlive its entry
    template <class T>
    void registerService(T* service)
    {
        services[typeid(T)] = service;
    }

    /// Forgets a type.
    template <class T>
    void unregister()
    {
        services.erase(typeid(T));
    }

    /// The service of a type. If there is none it says so on standard error, with the type's name:
    /// "nbKernelServiceFactory: couldn't find class '%s'!" for a type that is not registered,
    /// "nbKernelServiceFactory: service '%s' is NULL!" for one that is registered as null.
    /// @return null if there is none
    template <class T>
    T* get() const
    {
        return static_cast<T*>(lookUp(typeid(T), true));
    }

    /// The same without a word.
    template <class T>
    T* find() const
    {
        return static_cast<T*>(lookUp(typeid(T), false));
    }

    nbKernelServiceFactory(const nbKernelServiceFactory&) = delete;
    nbKernelServiceFactory& operator=(const nbKernelServiceFactory&) = delete;

private:
    nbKernelServiceFactory();
    ~nbKernelServiceFactory();

    void* lookUp(const std::type_info& type, bool isReported) const;

    std::unordered_map<std::type_index, void*> services;
    std::unique_ptr<nbObjectService> objectService;
};
