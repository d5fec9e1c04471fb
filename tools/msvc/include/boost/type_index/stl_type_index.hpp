// For Microsoft's compiler this header calls type_info::raw_name(), which libc++ does not have. Without the compiler's
// macro it calls name(). What it includes must still see the macro, so it comes first.
#pragma once
#include <boost/container_hash/hash_fwd.hpp>
#include <boost/core/demangle.hpp>
#include <boost/throw_exception.hpp>
#include <boost/type_index/type_index_facade.hpp>
#include <boost/type_traits/conditional.hpp>
#include <boost/type_traits/is_const.hpp>
#include <boost/type_traits/is_convertible.hpp>
#include <boost/type_traits/is_reference.hpp>
#include <boost/type_traits/is_volatile.hpp>
#include <boost/type_traits/remove_cv.hpp>
#include <boost/type_traits/remove_reference.hpp>
#include <cstring>
#include <typeinfo>
#pragma push_macro("_MSC_VER")
#undef _MSC_VER
#include_next <boost/type_index/stl_type_index.hpp>
#pragma pop_macro("_MSC_VER")
