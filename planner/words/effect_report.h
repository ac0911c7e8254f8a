#ifndef KELPOWER_PLANNER_WORDS_EFFECT_REPORT_H
#define KELPOWER_PLANNER_WORDS_EFFECT_REPORT_H

#include "model/effect.h"
#include "words/report.h"

namespace planner {

/// All effect sizes that follow from the values, by the names of their inputs, as a report. Its results are numbers by
/// the names of the effect sizes; `<name>-lower` and `<name>-upper` are the limits of an interval, and `use` tells which
/// option of which test takes the effect. `explained`: with formulas and sources. Throws an InputError or a NoSolution.
Report ConvertEffect(const InputValues& values, bool explained = false);

Report MakeReport(const EffectAnswer& answer);

/// The formula and source of each effect size.
Explanation Explain(const EffectAnswer& answer);

}  // namespace planner

#endif
