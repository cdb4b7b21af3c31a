// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <type_traits>
#include <utility>

template <class Signature>
class nbFunctionRef;

/// Refers to something callable for the length of a call: two pointers, no copy, no allocation.
/// For parameters only; what it refers to must outlive it, which a lambda written in the argument
/// list does. Calling one made from an empty std::function is the caller's fault.
template <class Result, class... Arguments>
class nbFunctionRef<Result(Arguments...)>
{
public:
    template <class Callable,
              class = std::enable_if_t<
                  !std::is_same_v<std::decay_t<Callable>, nbFunctionRef> &&
                  std::is_invocable_r_v<Result, std::remove_reference_t<Callable>&, Arguments...>>>
    nbFunctionRef(Callable&& callable)
        : object(const_cast<void*>(static_cast<const void*>(std::addressof(callable))))
        , invoke(&invokeAs<std::remove_reference_t<Callable>>)
    {
        static_assert(!std::is_function_v<std::remove_reference_t<Callable>>,
                      "wrap a plain function in a lambda");
    }

    Result operator()(Arguments... arguments) const
    {
        return invoke(object, std::forward<Arguments>(arguments)...);
    }

private:
    template <class Callable>
    static Result invokeAs(void* callable, Arguments... arguments)
    {
        return (*static_cast<Callable*>(callable))(std::forward<Arguments>(arguments)...);
    }

    void* object;
    Result (*invoke)(void*, Arguments...);
};
