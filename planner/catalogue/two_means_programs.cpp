#include <string>

#include "catalogue/two_means.h"

namespace planner {

void AddPooledPrograms(Details& details, const Inputs& in) {
  const bool isEqual = in.List("n")[0] == in.List("n")[1];
  auto& programs = details.equivalents;
  if (isEqual) {
    programs.insert(
        programs.begin(),
        {Equivalent{.program = "pwr",
                    .call =
                        "pwr.t.test({n-or-power}, d = {d}, sig.level = {alpha}, type = \"two.sample\", alternative = "
                        "{alternative}){answer}",
                    .remark = "n counts one group"},
         Equivalent{.program = "R",
                    .call =
                        "power.t.test({n-or-power}, delta = {d}, sd = 1, sig.level = {alpha}, type = \"two.sample\", "
                        "alternative = {r-alternative}, strict = TRUE){answer}",
                    .remark = "n counts one group; strict = TRUE counts both tails of a two-sided test"}});
  } else {
    programs.insert(programs.begin(),
                    {Equivalent{.program = "pwr",
                                .call = "pwr.t2n.test(n1 = {n1}, n2 = {n2}, d = {d}, sig.level = {alpha}, "
                                        "alternative = {alternative})$power"}});
  }
  programs.push_back({.program = "G*Power",
                      .call = "t tests > Means: Difference between two independent means (two groups); tails {tails}, "
                              "effect size d {d}, alpha {alpha}, {gpower-n}"});
}

void AddSas(Details& details, const Inputs& in) {
  const bool isPooled = SpreadsOfTwoMeans(in).isPooled;
  if (!in.Has("means")) return;
  const std::string sizes =
      in.List("n")[0] == in.List("n")[1] ? "npergroup={n-or-dot} power={power-or-dot}" : "groupns={n|} power=.";
  details.equivalents.push_back(
      {.program = "SAS",
       .call = std::string("proc power; twosamplemeans ") +
               (isPooled ? "test=diff groupmeans={means|} stddev={sd1}"
                         : "test=diff_satt groupmeans={means|} groupstddevs={sd|}") +
               " sides={sides} alpha={alpha} " + sizes + "; run;",
       .isSame = isPooled,
       .remark = isPooled ? ""
                          : "averages over the degrees of freedom that the data will give, which are taken here at "
                            "the standard deviations expected"});
}

}  // namespace planner
