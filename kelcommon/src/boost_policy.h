#ifndef KELCOMMON_SRC_BOOST_POLICY_H
#define KELCOMMON_SRC_BOOST_POLICY_H

#include <boost/math/policies/policy.hpp>

namespace KelMath {

/// Errors come back as NaN or infinity, never as exceptions, and everything is computed in double precision.
using QuietPolicy = boost::math::policies::policy<
    boost::math::policies::domain_error<boost::math::policies::ignore_error>,
    boost::math::policies::pole_error<boost::math::policies::ignore_error>,
    boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
    boost::math::policies::underflow_error<boost::math::policies::ignore_error>,
    boost::math::policies::denorm_error<boost::math::policies::ignore_error>,
    boost::math::policies::rounding_error<boost::math::policies::ignore_error>,
    boost::math::policies::evaluation_error<boost::math::policies::ignore_error>,
    boost::math::policies::indeterminate_result_error<boost::math::policies::ignore_error>,
    boost::math::policies::promote_double<false>>;

}  // namespace KelMath

#endif
