#pragma once

#include <OpenSG/OSGBaseTypes.h>

#include <functional>
#include <utility>

namespace osg {

/// A copyable callable. Made only by the osgTyped... functions, from functions and members that
/// take the first argument by non-const reference.
template <class Result, class... Args>
class TypedFunctor {
public:
    /// Calls it.
    Result call(Args... args) const { return m_function(std::forward<Args>(args)...); }

    /// For the osgTyped... functions.
    /// Not for users: nothing but the functions below shall make functors.
    struct Maker {
        template <class Callable>
        static TypedFunctor make(Callable callable)
        {
            return TypedFunctor(std::function<Result(Args...)>(callable));
        }
    };

private:
    explicit TypedFunctor(std::function<Result(Args...)> function) : m_function(std::move(function))
    {
    }

    std::function<Result(Args...)> m_function;
};

/// \name Makers
/// From a function, and from a member function with its object, which must outlive the functor.
/// @{
template <class Result, class Arg>
TypedFunctor<Result, Arg &> osgTypedFunctionFunctor1CPtrRef(Result (*function)(Arg &))
{
    return TypedFunctor<Result, Arg &>::Maker::make(function);
}

template <class Result, class Arg1, class Arg2>
TypedFunctor<Result, Arg1 &, Arg2> osgTypedFunctionFunctor2CPtrRef(Result (*function)(Arg1 &, Arg2))
{
    return TypedFunctor<Result, Arg1 &, Arg2>::Maker::make(function);
}

template <class Result, class Object, class Arg>
TypedFunctor<Result, Arg &> osgTypedMethodFunctor1ObjPtrCPtrRef(Object *object,
                                                                Result (Object::*method)(Arg &))
{
    return TypedFunctor<Result, Arg &>::Maker::make(
        [object, method](Arg &arg) { return (object->*method)(arg); });
}

template <class Result, class Object, class Arg1, class Arg2>
TypedFunctor<Result, Arg1 &, Arg2>
osgTypedMethodFunctor2ObjPtrCPtrRef(Object *object, Result (Object::*method)(Arg1 &, Arg2))
{
    return TypedFunctor<Result, Arg1 &, Arg2>::Maker::make(
        [object, method](Arg1 &arg1, Arg2 arg2) { return (object->*method)(arg1, arg2); });
}
/// @}

} // namespace osg
