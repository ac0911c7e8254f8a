# Written by tools/r/generate.py from the library's descriptions.

#' @export
kp_lib <- list(
  Combination = function(n, k) {
    call_export("Combination", list(n = n, k = k))
  },
  InvTanh = function(x) {
    call_export("InvTanh", list(x = x))
  },
  SampleSizeTotal = function(numGroups, groupSizes) {
    call_export("SampleSizeTotal", list(numGroups = numGroups, groupSizes = groupSizes),
                arrays = c("groupSizes"))
  },
  RMSSEOverallTest = function(numGroups, groupMeans, pooledSD, groupSizes, alpha) {
    call_export("RMSSEOverallTest", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                         groupSizes = groupSizes, alpha = alpha),
                arrays = c("groupMeans", "groupSizes"))
  },
  PowerOverallTest = function(numGroups, groupMeans, pooledSD, groupSizes, alpha) {
    call_export("PowerOverallTest", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                         groupSizes = groupSizes, alpha = alpha),
                arrays = c("groupMeans", "groupSizes"))
  },
  PowerOverallTestwES = function(numGroups, effectSize, isEtaSquared, groupSizes, alpha) {
    call_export("PowerOverallTestwES", list(numGroups = numGroups, effectSize = effectSize,
                                            isEtaSquared = isEtaSquared, groupSizes = groupSizes,
                                            alpha = alpha),
                arrays = c("groupSizes"))
  },
  PowerReverseOverallTest = function(numGroups, groupMeans, pooledSD, groupRatios, power, alpha) {
    call_export("PowerReverseOverallTest", list(numGroups = numGroups, groupMeans = groupMeans,
                                                pooledSD = pooledSD, groupRatios = groupRatios,
                                                power = power, alpha = alpha),
                arrays = c("groupMeans", "groupRatios"))
  },
  PowerReverseOverallTestwES = function(numGroups, effectSize, isEtaSquared, groupRatios, power, alpha) {
    call_export("PowerReverseOverallTestwES", list(numGroups = numGroups, effectSize = effectSize,
                                                   isEtaSquared = isEtaSquared, groupRatios = groupRatios,
                                                   power = power, alpha = alpha),
                arrays = c("groupRatios"))
  },
  PowerReversebyHalfCIOverallTest = function(halfWidth, numGroups, groupRatios, pooledSD, alpha) {
    call_export("PowerReversebyHalfCIOverallTest", list(halfWidth = halfWidth, numGroups = numGroups,
                                                        groupRatios = groupRatios, pooledSD = pooledSD,
                                                        alpha = alpha),
                arrays = c("groupRatios"))
  },
  HalfCIOverallTest = function(sampleSize, numGroups, pooledSD, alpha) {
    call_export("HalfCIOverallTest", list(sampleSize = sampleSize, numGroups = numGroups,
                                          pooledSD = pooledSD, alpha = alpha))
  },
  EffectSizeSC = function(numGroups, groupMeans, pooledSD, contrastCoefficients) {
    call_export("EffectSizeSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                     contrastCoefficients = contrastCoefficients),
                arrays = c("groupMeans", "contrastCoefficients"))
  },
  PowerSC = function(numGroups, groupMeans, pooledSD, groupSizes, contrastCoefficients, isDirectional,
                     alpha) {
    call_export("PowerSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                groupSizes = groupSizes, contrastCoefficients = contrastCoefficients,
                                isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupMeans", "groupSizes", "contrastCoefficients"))
  },
  PowerSCwES = function(numGroups, effectSize, groupSizes, contrastCoefficients, isDirectional, alpha) {
    call_export("PowerSCwES", list(numGroups = numGroups, effectSize = effectSize, groupSizes = groupSizes,
                                   contrastCoefficients = contrastCoefficients,
                                   isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupSizes", "contrastCoefficients"))
  },
  PowerReverseSC = function(numGroups, groupMeans, pooledSD, groupRatios, contrastCoefficients, power,
                            isDirectional, alpha) {
    call_export("PowerReverseSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                       groupRatios = groupRatios,
                                       contrastCoefficients = contrastCoefficients, power = power,
                                       isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupMeans", "groupRatios", "contrastCoefficients"))
  },
  PowerReverseSCwES = function(numGroups, effectSize, groupRatios, contrastCoefficients, power,
                               isDirectional, alpha) {
    call_export("PowerReverseSCwES", list(numGroups = numGroups, effectSize = effectSize,
                                          groupRatios = groupRatios,
                                          contrastCoefficients = contrastCoefficients, power = power,
                                          isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupRatios", "contrastCoefficients"))
  },
  PowerReversebyHalfCISCTest = function(halfWidth, numGroups, groupRatios, contrastCoefficients, pooledSD,
                                        alpha) {
    call_export("PowerReversebyHalfCISCTest", list(halfWidth = halfWidth, numGroups = numGroups,
                                                   groupRatios = groupRatios,
                                                   contrastCoefficients = contrastCoefficients,
                                                   pooledSD = pooledSD, alpha = alpha),
                arrays = c("groupRatios", "contrastCoefficients"))
  },
  HalfCISCTest = function(sampleSize, numGroups, groupSizes, contrastCoefficients, pooledSD, alpha) {
    call_export("HalfCISCTest", list(sampleSize = sampleSize, numGroups = numGroups, groupSizes = groupSizes,
                                     contrastCoefficients = contrastCoefficients, pooledSD = pooledSD,
                                     alpha = alpha),
                arrays = c("groupSizes", "contrastCoefficients"))
  },
  EffectSizePairwiseDiff = function(numGroups, groupMeans, pooledSD, firstGroup, secondGroup) {
    call_export("EffectSizePairwiseDiff", list(numGroups = numGroups, groupMeans = groupMeans,
                                               pooledSD = pooledSD, firstGroup = firstGroup,
                                               secondGroup = secondGroup),
                arrays = c("groupMeans"))
  },
  PowerPairwiseDiff = function(numGroups, groupMeans, pooledSD, groupSizes, firstGroup, secondGroup,
                               adjustment, alpha) {
    call_export("PowerPairwiseDiff", list(numGroups = numGroups, groupMeans = groupMeans,
                                          pooledSD = pooledSD, groupSizes = groupSizes,
                                          firstGroup = firstGroup, secondGroup = secondGroup,
                                          adjustment = adjustment, alpha = alpha),
                arrays = c("groupMeans", "groupSizes"))
  },
  PowerReversePairwiseDiff = function(numGroups, groupMeans, pooledSD, groupRatios, firstGroup, secondGroup,
                                      power, adjustment, alpha) {
    call_export("PowerReversePairwiseDiff", list(numGroups = numGroups, groupMeans = groupMeans,
                                                 pooledSD = pooledSD, groupRatios = groupRatios,
                                                 firstGroup = firstGroup, secondGroup = secondGroup,
                                                 power = power, adjustment = adjustment, alpha = alpha),
                arrays = c("groupMeans", "groupRatios"))
  },
  PowerReversebyHalfCIPairwiseDiff = function(halfWidth, numGroups, groupRatios, firstGroup, secondGroup,
                                              pooledSD, adjustment, alpha) {
    call_export("PowerReversebyHalfCIPairwiseDiff", list(halfWidth = halfWidth, numGroups = numGroups,
                                                         groupRatios = groupRatios, firstGroup = firstGroup,
                                                         secondGroup = secondGroup, pooledSD = pooledSD,
                                                         adjustment = adjustment, alpha = alpha),
                arrays = c("groupRatios"))
  },
  HalfCIPairwiseDiff = function(sampleSize, numGroups, groupSizes, firstGroup, secondGroup, pooledSD,
                                adjustment, alpha) {
    call_export("HalfCIPairwiseDiff", list(sampleSize = sampleSize, numGroups = numGroups,
                                           groupSizes = groupSizes, firstGroup = firstGroup,
                                           secondGroup = secondGroup, pooledSD = pooledSD,
                                           adjustment = adjustment, alpha = alpha),
                arrays = c("groupSizes"))
  },
  PlotNOverallTest = function(numGroups, groupMeans, pooledSD, groupSizes, from, to, alpha) {
    call_export("PlotNOverallTest", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                         groupSizes = groupSizes, from = from, to = to, alpha = alpha),
                arrays = c("groupMeans", "groupSizes"))
  },
  PlotNOverallTestFES = function(numGroups, effectSize, isEtaSquared, groupSizes, from, to, alpha) {
    call_export("PlotNOverallTestFES", list(numGroups = numGroups, effectSize = effectSize,
                                            isEtaSquared = isEtaSquared, groupSizes = groupSizes,
                                            from = from, to = to, alpha = alpha),
                arrays = c("groupSizes"))
  },
  PlotESOverallTest = function(numGroups, isEtaSquared, groupSizes, esFrom, esTo, alpha, stepFraction) {
    call_export("PlotESOverallTest", list(numGroups = numGroups, isEtaSquared = isEtaSquared,
                                          groupSizes = groupSizes, esFrom = esFrom, esTo = esTo,
                                          alpha = alpha, stepFraction = stepFraction),
                arrays = c("groupSizes"))
  },
  PlotSDOverallTest = function(numGroups, groupMeans, pooledSD, groupSizes, sdFrom, sdTo, alpha,
                               stepFraction) {
    call_export("PlotSDOverallTest", list(numGroups = numGroups, groupMeans = groupMeans,
                                          pooledSD = pooledSD, groupSizes = groupSizes, sdFrom = sdFrom,
                                          sdTo = sdTo, alpha = alpha, stepFraction = stepFraction),
                arrays = c("groupMeans", "groupSizes"))
  },
  PlotNaSDOverallTest = function(numGroups, groupMeans, pooledSD, groupSizes, from, to, sdFrom, sdTo, alpha,
                                 stepFraction) {
    call_export("PlotNaSDOverallTest", list(numGroups = numGroups, groupMeans = groupMeans,
                                            pooledSD = pooledSD, groupSizes = groupSizes, from = from,
                                            to = to, sdFrom = sdFrom, sdTo = sdTo, alpha = alpha,
                                            stepFraction = stepFraction),
                arrays = c("groupMeans", "groupSizes"))
  },
  PlotNaESOverallTest = function(numGroups, effectSize, isEtaSquared, groupSizes, from, to, esFrom, esTo,
                                 alpha, stepFraction) {
    call_export("PlotNaESOverallTest", list(numGroups = numGroups, effectSize = effectSize,
                                            isEtaSquared = isEtaSquared, groupSizes = groupSizes,
                                            from = from, to = to, esFrom = esFrom, esTo = esTo,
                                            alpha = alpha, stepFraction = stepFraction),
                arrays = c("groupSizes"))
  },
  PlotNSC = function(numGroups, groupMeans, pooledSD, groupSizes, contrastCoefficients, from, to,
                     isDirectional, alpha) {
    call_export("PlotNSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                groupSizes = groupSizes, contrastCoefficients = contrastCoefficients,
                                from = from, to = to, isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupMeans", "groupSizes", "contrastCoefficients"))
  },
  PlotNSCFES = function(numGroups, effectSize, groupSizes, contrastCoefficients, from, to, isDirectional,
                        alpha) {
    call_export("PlotNSCFES", list(numGroups = numGroups, effectSize = effectSize, groupSizes = groupSizes,
                                   contrastCoefficients = contrastCoefficients, from = from, to = to,
                                   isDirectional = isDirectional, alpha = alpha),
                arrays = c("groupSizes", "contrastCoefficients"))
  },
  PlotSDSC = function(numGroups, groupMeans, pooledSD, groupSizes, contrastCoefficients, sdFrom, sdTo,
                      isDirectional, alpha, stepFraction) {
    call_export("PlotSDSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                 groupSizes = groupSizes, contrastCoefficients = contrastCoefficients,
                                 sdFrom = sdFrom, sdTo = sdTo, isDirectional = isDirectional, alpha = alpha,
                                 stepFraction = stepFraction),
                arrays = c("groupMeans", "groupSizes", "contrastCoefficients"))
  },
  PlotNaSDSC = function(numGroups, groupMeans, pooledSD, groupSizes, contrastCoefficients, from, to, sdFrom,
                        sdTo, isDirectional, alpha, stepFraction) {
    call_export("PlotNaSDSC", list(numGroups = numGroups, groupMeans = groupMeans, pooledSD = pooledSD,
                                   groupSizes = groupSizes, contrastCoefficients = contrastCoefficients,
                                   from = from, to = to, sdFrom = sdFrom, sdTo = sdTo,
                                   isDirectional = isDirectional, alpha = alpha, stepFraction = stepFraction),
                arrays = c("groupMeans", "groupSizes", "contrastCoefficients"))
  },
  EffectSizeOneSample = function(mean, sd, testValue) {
    call_export("EffectSizeOneSample", list(mean = mean, sd = sd, testValue = testValue))
  },
  PowerOneSampleNondirectionalES = function(sampleSize, effectSize, alpha) {
    call_export("PowerOneSampleNondirectionalES", list(sampleSize = sampleSize, effectSize = effectSize,
                                                       alpha = alpha))
  },
  PowerOneSampleNondirectional = function(sampleSize, mean, sd, testValue, alpha) {
    call_export("PowerOneSampleNondirectional", list(sampleSize = sampleSize, mean = mean, sd = sd,
                                                     testValue = testValue, alpha = alpha))
  },
  PowerOneSampleDirectionalES = function(sampleSize, effectSize, alpha) {
    call_export("PowerOneSampleDirectionalES", list(sampleSize = sampleSize, effectSize = effectSize,
                                                    alpha = alpha))
  },
  PowerOneSampleDirectional = function(sampleSize, mean, sd, testValue, alpha) {
    call_export("PowerOneSampleDirectional", list(sampleSize = sampleSize, mean = mean, sd = sd,
                                                  testValue = testValue, alpha = alpha))
  },
  PowerReverseOneSampleNondirectionalES = function(power, effectSize, alpha) {
    call_export("PowerReverseOneSampleNondirectionalES", list(power = power, effectSize = effectSize,
                                                              alpha = alpha))
  },
  PowerReverseOneSampleNondirectional = function(power, mean, sd, testValue, alpha) {
    call_export("PowerReverseOneSampleNondirectional", list(power = power, mean = mean, sd = sd,
                                                            testValue = testValue, alpha = alpha))
  },
  PowerReverseOneSampleDirectionalES = function(power, effectSize, alpha) {
    call_export("PowerReverseOneSampleDirectionalES", list(power = power, effectSize = effectSize,
                                                           alpha = alpha))
  },
  PowerReverseOneSampleDirectional = function(power, mean, sd, testValue, alpha) {
    call_export("PowerReverseOneSampleDirectional", list(power = power, mean = mean, sd = sd,
                                                         testValue = testValue, alpha = alpha))
  },
  HalfCIOneSampleMeans = function(sampleSize, sd, alpha) {
    call_export("HalfCIOneSampleMeans", list(sampleSize = sampleSize, sd = sd, alpha = alpha))
  },
  PowerReversebyHalfCIOneSampleMeans = function(halfWidth, sd, alpha) {
    call_export("PowerReversebyHalfCIOneSampleMeans", list(halfWidth = halfWidth, sd = sd, alpha = alpha))
  },
  PlotNOneSample = function(ignored, mean, sd, minSampleSize, maxSampleSize, directional, testValue, alpha) {
    call_export("PlotNOneSample", list(ignored = ignored, mean = mean, sd = sd,
                                       minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                       directional = directional, testValue = testValue, alpha = alpha))
  },
  PlotNOneSampleFES = function(effectSize, minSampleSize, maxSampleSize, directional, alpha) {
    call_export("PlotNOneSampleFES", list(effectSize = effectSize, minSampleSize = minSampleSize,
                                          maxSampleSize = maxSampleSize, directional = directional,
                                          alpha = alpha))
  },
  PlotESOneSample = function(sampleSize, minEffectSize, maxEffectSize, directional, alpha, stepFraction) {
    call_export("PlotESOneSample", list(sampleSize = sampleSize, minEffectSize = minEffectSize,
                                        maxEffectSize = maxEffectSize, directional = directional,
                                        alpha = alpha, stepFraction = stepFraction))
  },
  PlotNaESOneSample = function(minSampleSize, maxSampleSize, minEffectSize, maxEffectSize, directional,
                               alpha, stepFraction) {
    call_export("PlotNaESOneSample", list(minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                          minEffectSize = minEffectSize, maxEffectSize = maxEffectSize,
                                          directional = directional, alpha = alpha,
                                          stepFraction = stepFraction))
  },
  EffectSizeRelated = function(mean1, sd1, mean2, sd2, correlation) {
    call_export("EffectSizeRelated", list(mean1 = mean1, sd1 = sd1, mean2 = mean2, sd2 = sd2,
                                          correlation = correlation))
  },
  PowerRelatedNondirectionalES = function(sampleSize, effectSize, alpha) {
    call_export("PowerRelatedNondirectionalES", list(sampleSize = sampleSize, effectSize = effectSize,
                                                     alpha = alpha))
  },
  PowerRelatedNondirectional = function(sampleSize, mean1, sd1, mean2, sd2, correlation, alpha) {
    call_export("PowerRelatedNondirectional", list(sampleSize = sampleSize, mean1 = mean1, sd1 = sd1,
                                                   mean2 = mean2, sd2 = sd2, correlation = correlation,
                                                   alpha = alpha))
  },
  PowerRelatedDirectionalES = function(sampleSize, effectSize, alpha) {
    call_export("PowerRelatedDirectionalES", list(sampleSize = sampleSize, effectSize = effectSize,
                                                  alpha = alpha))
  },
  PowerRelatedDirectional = function(sampleSize, mean1, sd1, mean2, sd2, correlation, alpha) {
    call_export("PowerRelatedDirectional", list(sampleSize = sampleSize, mean1 = mean1, sd1 = sd1,
                                                mean2 = mean2, sd2 = sd2, correlation = correlation,
                                                alpha = alpha))
  },
  PowerReverseRelatedNondirectionalES = function(power, effectSize, alpha) {
    call_export("PowerReverseRelatedNondirectionalES", list(power = power, effectSize = effectSize,
                                                            alpha = alpha))
  },
  PowerReverseRelatedNondirectional = function(power, mean1, sd1, mean2, sd2, correlation, alpha) {
    call_export("PowerReverseRelatedNondirectional", list(power = power, mean1 = mean1, sd1 = sd1,
                                                          mean2 = mean2, sd2 = sd2,
                                                          correlation = correlation, alpha = alpha))
  },
  PowerReverseRelatedDirectionalES = function(power, effectSize, alpha) {
    call_export("PowerReverseRelatedDirectionalES", list(power = power, effectSize = effectSize,
                                                         alpha = alpha))
  },
  PowerReverseRelatedDirectional = function(power, mean1, sd1, mean2, sd2, correlation, alpha) {
    call_export("PowerReverseRelatedDirectional", list(power = power, mean1 = mean1, sd1 = sd1,
                                                       mean2 = mean2, sd2 = sd2, correlation = correlation,
                                                       alpha = alpha))
  },
  HalfCIRelatedMeans = function(sampleSize, sd1, sd2, correlation, alpha) {
    call_export("HalfCIRelatedMeans", list(sampleSize = sampleSize, sd1 = sd1, sd2 = sd2,
                                           correlation = correlation, alpha = alpha))
  },
  PowerReversebyHalfCIRelatedMeans = function(halfWidth, sd1, sd2, correlation, alpha) {
    call_export("PowerReversebyHalfCIRelatedMeans", list(halfWidth = halfWidth, sd1 = sd1, sd2 = sd2,
                                                         correlation = correlation, alpha = alpha))
  },
  PlotNRelated = function(ignored, mean1, sd1, mean2, sd2, minSampleSize, maxSampleSize, correlation,
                          directional, alpha) {
    call_export("PlotNRelated", list(ignored = ignored, mean1 = mean1, sd1 = sd1, mean2 = mean2, sd2 = sd2,
                                     minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                     correlation = correlation, directional = directional, alpha = alpha))
  },
  PlotNRelatedFES = function(effectSize, minSampleSize, maxSampleSize, directional, alpha) {
    call_export("PlotNRelatedFES", list(effectSize = effectSize, minSampleSize = minSampleSize,
                                        maxSampleSize = maxSampleSize, directional = directional,
                                        alpha = alpha))
  },
  PlotESRelated = function(sampleSize, minEffectSize, maxEffectSize, directional, alpha, stepFraction) {
    call_export("PlotESRelated", list(sampleSize = sampleSize, minEffectSize = minEffectSize,
                                      maxEffectSize = maxEffectSize, directional = directional,
                                      alpha = alpha, stepFraction = stepFraction))
  },
  PlotNaESRelated = function(minSampleSize, maxSampleSize, minEffectSize, maxEffectSize, directional, alpha,
                             stepFraction) {
    call_export("PlotNaESRelated", list(minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                        minEffectSize = minEffectSize, maxEffectSize = maxEffectSize,
                                        directional = directional, alpha = alpha,
                                        stepFraction = stepFraction))
  },
  EffectSizeIndependent = function(mean1, mean2, sd) {
    call_export("EffectSizeIndependent", list(mean1 = mean1, mean2 = mean2, sd = sd))
  },
  PowerIndependentNondirectional = function(sampleSize1, mean1, sd1, sampleSize2, mean2, sd2, alpha) {
    call_export("PowerIndependentNondirectional", list(sampleSize1 = sampleSize1, mean1 = mean1, sd1 = sd1,
                                                       sampleSize2 = sampleSize2, mean2 = mean2, sd2 = sd2,
                                                       alpha = alpha))
  },
  PowerIndependentNondirectionalES = function(sampleSize1, sampleSize2, effectSize, alpha) {
    call_export("PowerIndependentNondirectionalES", list(sampleSize1 = sampleSize1,
                                                         sampleSize2 = sampleSize2, effectSize = effectSize,
                                                         alpha = alpha))
  },
  PowerIndependentDirectional = function(sampleSize1, mean1, sd1, sampleSize2, mean2, sd2, alpha) {
    call_export("PowerIndependentDirectional", list(sampleSize1 = sampleSize1, mean1 = mean1, sd1 = sd1,
                                                    sampleSize2 = sampleSize2, mean2 = mean2, sd2 = sd2,
                                                    alpha = alpha))
  },
  PowerIndependentDirectionalES = function(sampleSize1, sampleSize2, effectSize, alpha) {
    call_export("PowerIndependentDirectionalES", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                                      effectSize = effectSize, alpha = alpha))
  },
  PowerReverseIndependentNondirectional = function(power, ratio, mean1, sd1, mean2, sd2, alpha) {
    call_export("PowerReverseIndependentNondirectional", list(power = power, ratio = ratio, mean1 = mean1,
                                                              sd1 = sd1, mean2 = mean2, sd2 = sd2,
                                                              alpha = alpha),
                has_value = FALSE)
  },
  PowerReverseIndependentDirectional = function(power, ratio, mean1, sd1, mean2, sd2, alpha) {
    call_export("PowerReverseIndependentDirectional", list(power = power, ratio = ratio, mean1 = mean1,
                                                           sd1 = sd1, mean2 = mean2, sd2 = sd2,
                                                           alpha = alpha),
                has_value = FALSE)
  },
  PowerReverseIndependentNondirectionalES = function(power, ratio, effectSize, alpha) {
    call_export("PowerReverseIndependentNondirectionalES", list(power = power, ratio = ratio,
                                                                effectSize = effectSize, alpha = alpha),
                has_value = FALSE)
  },
  PowerReverseIndependentDirectionalES = function(power, ratio, effectSize, alpha) {
    call_export("PowerReverseIndependentDirectionalES", list(power = power, ratio = ratio,
                                                             effectSize = effectSize, alpha = alpha),
                has_value = FALSE)
  },
  HalfCIIndependentMeans = function(sampleSize1, sd1, sampleSize2, sd2, alpha) {
    call_export("HalfCIIndependentMeans", list(sampleSize1 = sampleSize1, sd1 = sd1,
                                               sampleSize2 = sampleSize2, sd2 = sd2, alpha = alpha))
  },
  PowerReversebyHalfCIIndependentMeans = function(halfWidth, ratio, sd1, sd2, alpha) {
    call_export("PowerReversebyHalfCIIndependentMeans", list(halfWidth = halfWidth, ratio = ratio, sd1 = sd1,
                                                             sd2 = sd2, alpha = alpha),
                has_value = FALSE)
  },
  PlotRatioIndependent = function(totalSize, mean1, sd1, mean2, sd2, minRatio, maxRatio, directional, alpha,
                                  stepFraction) {
    call_export("PlotRatioIndependent", list(totalSize = totalSize, mean1 = mean1, sd1 = sd1, mean2 = mean2,
                                             sd2 = sd2, minRatio = minRatio, maxRatio = maxRatio,
                                             directional = directional, alpha = alpha,
                                             stepFraction = stepFraction))
  },
  PlotRatioIndependentFES = function(totalSize, effectSize, minRatio, maxRatio, directional, alpha,
                                     stepFraction) {
    call_export("PlotRatioIndependentFES", list(totalSize = totalSize, effectSize = effectSize,
                                                minRatio = minRatio, maxRatio = maxRatio,
                                                directional = directional, alpha = alpha,
                                                stepFraction = stepFraction))
  },
  PlotESIndepended = function(sampleSize1, sampleSize2, minEffectSize, maxEffectSize, directional, alpha,
                              stepFraction) {
    call_export("PlotESIndepended", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                         minEffectSize = minEffectSize, maxEffectSize = maxEffectSize,
                                         directional = directional, alpha = alpha,
                                         stepFraction = stepFraction))
  },
  PlotMeanDiffIndepended = function(sampleSize1, mean1, sd1, sampleSize2, mean2, sd2, minMeanDifference,
                                    maxMeanDifference, directional, alpha, step) {
    call_export("PlotMeanDiffIndepended", list(sampleSize1 = sampleSize1, mean1 = mean1, sd1 = sd1,
                                               sampleSize2 = sampleSize2, mean2 = mean2, sd2 = sd2,
                                               minMeanDifference = minMeanDifference,
                                               maxMeanDifference = maxMeanDifference,
                                               directional = directional, alpha = alpha, step = step))
  },
  PlotRatioaESIndependent = function(totalSize, minRatio, maxRatio, minEffectSize, maxEffectSize,
                                     directional, alpha, stepFraction) {
    call_export("PlotRatioaESIndependent", list(totalSize = totalSize, minRatio = minRatio,
                                                maxRatio = maxRatio, minEffectSize = minEffectSize,
                                                maxEffectSize = maxEffectSize, directional = directional,
                                                alpha = alpha, stepFraction = stepFraction))
  },
  PlotRatioaMeanDiffIndependent = function(totalSize, mean1, sd1, mean2, sd2, minRatio, maxRatio,
                                           minMeanDifference, maxMeanDifference, directional, alpha,
                                           stepFraction) {
    call_export("PlotRatioaMeanDiffIndependent", list(totalSize = totalSize, mean1 = mean1, sd1 = sd1,
                                                      mean2 = mean2, sd2 = sd2, minRatio = minRatio,
                                                      maxRatio = maxRatio,
                                                      minMeanDifference = minMeanDifference,
                                                      maxMeanDifference = maxMeanDifference,
                                                      directional = directional, alpha = alpha,
                                                      stepFraction = stepFraction))
  },
  PowerOneSampBinom = function(sampleSize, altProportion, nullProportion, method, oneSided, alpha,
                               continuityCorrection) {
    call_export("PowerOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                          nullProportion = nullProportion, method = method,
                                          oneSided = oneSided, alpha = alpha,
                                          continuityCorrection = continuityCorrection))
  },
  PowerReverseOneSampBinom = function(power, altProportion, nullProportion, method, oneSided, alpha,
                                      continuityCorrection) {
    call_export("PowerReverseOneSampBinom", list(power = power, altProportion = altProportion,
                                                 nullProportion = nullProportion, method = method,
                                                 oneSided = oneSided, alpha = alpha,
                                                 continuityCorrection = continuityCorrection))
  },
  HalfCIOneSampBinom = function(sampleSize, proportion, ciMethod, alpha, continuityCorrection) {
    call_export("HalfCIOneSampBinom", list(sampleSize = sampleSize, proportion = proportion,
                                           ciMethod = ciMethod, alpha = alpha,
                                           continuityCorrection = continuityCorrection))
  },
  PowerReversebyHalfCIOneSampBinom = function(halfWidth, proportion, ciMethod, alpha, continuityCorrection) {
    call_export("PowerReversebyHalfCIOneSampBinom", list(halfWidth = halfWidth, proportion = proportion,
                                                         ciMethod = ciMethod, alpha = alpha,
                                                         continuityCorrection = continuityCorrection))
  },
  PlotNOneSampBinom = function(sampleSize, altProportion, nullProportion, method, oneSided, alpha,
                               minSampleSize, maxSampleSize, continuityCorrection) {
    call_export("PlotNOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                          nullProportion = nullProportion, method = method,
                                          oneSided = oneSided, alpha = alpha, minSampleSize = minSampleSize,
                                          maxSampleSize = maxSampleSize,
                                          continuityCorrection = continuityCorrection))
  },
  PlotNullOneSampBinom = function(sampleSize, altProportion, method, oneSided, alpha, continuityCorrection,
                                  step) {
    call_export("PlotNullOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                             method = method, oneSided = oneSided, alpha = alpha,
                                             continuityCorrection = continuityCorrection, step = step))
  },
  PlotAlterOneSampBinom = function(sampleSize, nullProportion, method, oneSided, alpha, continuityCorrection,
                                   step) {
    call_export("PlotAlterOneSampBinom", list(sampleSize = sampleSize, nullProportion = nullProportion,
                                              method = method, oneSided = oneSided, alpha = alpha,
                                              continuityCorrection = continuityCorrection, step = step))
  },
  PlotRiskDiffOneSampBionm = function(sampleSize, nullProportion, method, oneSided, alpha,
                                      continuityCorrection, step) {
    call_export("PlotRiskDiffOneSampBionm", list(sampleSize = sampleSize, nullProportion = nullProportion,
                                                 method = method, oneSided = oneSided, alpha = alpha,
                                                 continuityCorrection = continuityCorrection, step = step))
  },
  PlotNRiskDiffOneSampBinom = function(sampleSize, altProportion, nullProportion, method, oneSided, alpha,
                                       minSampleSize, maxSampleSize, continuityCorrection, step) {
    call_export("PlotNRiskDiffOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                                  nullProportion = nullProportion, method = method,
                                                  oneSided = oneSided, alpha = alpha,
                                                  minSampleSize = minSampleSize,
                                                  maxSampleSize = maxSampleSize,
                                                  continuityCorrection = continuityCorrection, step = step))
  },
  PlotNNullOneSampBinom = function(sampleSize, altProportion, nullProportion, method, oneSided, alpha,
                                   minSampleSize, maxSampleSize, continuityCorrection, step) {
    call_export("PlotNNullOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                              nullProportion = nullProportion, method = method,
                                              oneSided = oneSided, alpha = alpha,
                                              minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                              continuityCorrection = continuityCorrection, step = step))
  },
  PlotNAlterOneSampBinom = function(sampleSize, altProportion, nullProportion, method, oneSided, alpha,
                                    minSampleSize, maxSampleSize, continuityCorrection, step) {
    call_export("PlotNAlterOneSampBinom", list(sampleSize = sampleSize, altProportion = altProportion,
                                               nullProportion = nullProportion, method = method,
                                               oneSided = oneSided, alpha = alpha,
                                               minSampleSize = minSampleSize, maxSampleSize = maxSampleSize,
                                               continuityCorrection = continuityCorrection, step = step))
  },
  PlotNullAlterOneSampBinom = function(sampleSize, method, oneSided, alpha, continuityCorrection, step) {
    call_export("PlotNullAlterOneSampBinom", list(sampleSize = sampleSize, method = method,
                                                  oneSided = oneSided, alpha = alpha,
                                                  continuityCorrection = continuityCorrection, step = step))
  },
  PowerbyPRelSampBionm = function(sampleSize, discordant12, discordant21, oneSided, exact, alpha) {
    call_export("PowerbyPRelSampBionm", list(sampleSize = sampleSize, discordant12 = discordant12,
                                             discordant21 = discordant21, oneSided = oneSided, exact = exact,
                                             alpha = alpha))
  },
  PowerbyCRelSampBionm = function(sampleSize, discordantCount12, discordantCount21, oneSided, exact, alpha) {
    call_export("PowerbyCRelSampBionm", list(sampleSize = sampleSize, discordantCount12 = discordantCount12,
                                             discordantCount21 = discordantCount21, oneSided = oneSided,
                                             exact = exact, alpha = alpha))
  },
  PowerbyMargPRelSampBionm = function(sampleSize, marginal1, marginal2, correlation, oneSided, exact,
                                      alpha) {
    call_export("PowerbyMargPRelSampBionm", list(sampleSize = sampleSize, marginal1 = marginal1,
                                                 marginal2 = marginal2, correlation = correlation,
                                                 oneSided = oneSided, exact = exact, alpha = alpha))
  },
  PowerbyMargCRelSampBionm = function(sampleSize, marginalCount1, marginalCount2, correlation, oneSided,
                                      exact, alpha) {
    call_export("PowerbyMargCRelSampBionm", list(sampleSize = sampleSize, marginalCount1 = marginalCount1,
                                                 marginalCount2 = marginalCount2, correlation = correlation,
                                                 oneSided = oneSided, exact = exact, alpha = alpha))
  },
  PowerReversebyPRelSampBionm = function(power, discordant12, discordant21, oneSided, exact, alpha) {
    call_export("PowerReversebyPRelSampBionm", list(power = power, discordant12 = discordant12,
                                                    discordant21 = discordant21, oneSided = oneSided,
                                                    exact = exact, alpha = alpha))
  },
  PowerReversebyMargPRelSampBionm = function(power, marginal1, marginal2, correlation, oneSided, exact,
                                             alpha) {
    call_export("PowerReversebyMargPRelSampBionm", list(power = power, marginal1 = marginal1,
                                                        marginal2 = marginal2, correlation = correlation,
                                                        oneSided = oneSided, exact = exact, alpha = alpha))
  },
  HalfCIRelSampBinom = function(sampleSize, discordant12, discordant21, ciMethod, alpha,
                                continuityCorrection) {
    call_export("HalfCIRelSampBinom", list(sampleSize = sampleSize, discordant12 = discordant12,
                                           discordant21 = discordant21, ciMethod = ciMethod, alpha = alpha,
                                           continuityCorrection = continuityCorrection))
  },
  PowerReversebyHalfCIRelSampBinom = function(halfWidth, discordant12, discordant21, ciMethod, alpha,
                                              continuityCorrection) {
    call_export("PowerReversebyHalfCIRelSampBinom", list(halfWidth = halfWidth, discordant12 = discordant12,
                                                         discordant21 = discordant21, ciMethod = ciMethod,
                                                         alpha = alpha,
                                                         continuityCorrection = continuityCorrection))
  },
  PlotNRelSampBionm = function(sampleSize, discordant12, discordant21, minSampleSize, maxSampleSize,
                               oneSided, exact, alpha) {
    call_export("PlotNRelSampBionm", list(sampleSize = sampleSize, discordant12 = discordant12,
                                          discordant21 = discordant21, minSampleSize = minSampleSize,
                                          maxSampleSize = maxSampleSize, oneSided = oneSided, exact = exact,
                                          alpha = alpha))
  },
  PlotRiskDiffRelSampBionm = function(sampleSize, discordant12, oneSided, exact, alpha, step) {
    call_export("PlotRiskDiffRelSampBionm", list(sampleSize = sampleSize, discordant12 = discordant12,
                                                 oneSided = oneSided, exact = exact, alpha = alpha,
                                                 step = step))
  },
  PlotRiskRatioRelSampBionm = function(sampleSize, discordant12, discordant21, minRatio, maxRatio, oneSided,
                                       exact, alpha, step) {
    call_export("PlotRiskRatioRelSampBionm", list(sampleSize = sampleSize, discordant12 = discordant12,
                                                  discordant21 = discordant21, minRatio = minRatio,
                                                  maxRatio = maxRatio, oneSided = oneSided, exact = exact,
                                                  alpha = alpha, step = step))
  },
  PlotOddsRatioRelSampBionm = function(sampleSize, discordant12, minRatio, maxRatio, oneSided, exact, alpha,
                                       step) {
    call_export("PlotOddsRatioRelSampBionm", list(sampleSize = sampleSize, discordant12 = discordant12,
                                                  minRatio = minRatio, maxRatio = maxRatio,
                                                  oneSided = oneSided, exact = exact, alpha = alpha,
                                                  step = step))
  },
  PlotCorrRelSampBionm = function(sampleSize, marginal1, marginal2, oneSided, exact, alpha, step) {
    call_export("PlotCorrRelSampBionm", list(sampleSize = sampleSize, marginal1 = marginal1,
                                             marginal2 = marginal2, oneSided = oneSided, exact = exact,
                                             alpha = alpha, step = step))
  },
  PlotPropRelSampBionm = function(sampleSize, oneSided, exact, alpha, step) {
    call_export("PlotPropRelSampBionm", list(sampleSize = sampleSize, oneSided = oneSided, exact = exact,
                                             alpha = alpha, step = step))
  },
  PlotMargPropRelSampBionm = function(sampleSize, correlation, oneSided, exact, alpha, step) {
    call_export("PlotMargPropRelSampBionm", list(sampleSize = sampleSize, correlation = correlation,
                                                 oneSided = oneSided, exact = exact, alpha = alpha,
                                                 step = step))
  },
  PowerIndSampBinom = function(sampleSize1, sampleSize2, proportion1, proportion2, exact, method, oneSided,
                               alpha, continuityCorrection, pooledVariance) {
    call_export("PowerIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                          proportion1 = proportion1, proportion2 = proportion2,
                                          exact = exact, method = method, oneSided = oneSided, alpha = alpha,
                                          continuityCorrection = continuityCorrection,
                                          pooledVariance = pooledVariance))
  },
  PowerReverseIndSampBinom = function(power, proportion1, proportion2, sizeRatio, exact, method, oneSided,
                                      alpha, continuityCorrection, pooledVariance) {
    call_export("PowerReverseIndSampBinom", list(power = power, proportion1 = proportion1,
                                                 proportion2 = proportion2, sizeRatio = sizeRatio,
                                                 exact = exact, method = method, oneSided = oneSided,
                                                 alpha = alpha, continuityCorrection = continuityCorrection,
                                                 pooledVariance = pooledVariance),
                has_value = FALSE)
  },
  HalfCIIndSampBinom = function(sampleSize1, sampleSize2, proportion1, proportion2, ciMethod, alpha,
                                continuityCorrection) {
    call_export("HalfCIIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                           proportion1 = proportion1, proportion2 = proportion2,
                                           ciMethod = ciMethod, alpha = alpha,
                                           continuityCorrection = continuityCorrection))
  },
  PowerReversebyHalfCIIndSampBinom = function(halfWidth, proportion1, proportion2, sizeRatio, ciMethod,
                                              alpha, continuityCorrection) {
    call_export("PowerReversebyHalfCIIndSampBinom", list(halfWidth = halfWidth, proportion1 = proportion1,
                                                         proportion2 = proportion2, sizeRatio = sizeRatio,
                                                         ciMethod = ciMethod, alpha = alpha,
                                                         continuityCorrection = continuityCorrection),
                has_value = FALSE)
  },
  PlotNIndSampBinom = function(sampleSize1, sampleSize2, proportion1, proportion2, exact, method, oneSided,
                               alpha, continuityCorrection, pooledVariance, minSampleSize1, maxSampleSize1,
                               minSampleSize2, maxSampleSize2) {
    call_export("PlotNIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                          proportion1 = proportion1, proportion2 = proportion2,
                                          exact = exact, method = method, oneSided = oneSided, alpha = alpha,
                                          continuityCorrection = continuityCorrection,
                                          pooledVariance = pooledVariance, minSampleSize1 = minSampleSize1,
                                          maxSampleSize1 = maxSampleSize1, minSampleSize2 = minSampleSize2,
                                          maxSampleSize2 = maxSampleSize2))
  },
  PlotPropIndSampBinom = function(sampleSize1, sampleSize2, proportion1, proportion2, exact, method,
                                  oneSided, alpha, continuityCorrection, pooledVariance, step) {
    call_export("PlotPropIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                             proportion1 = proportion1, proportion2 = proportion2,
                                             exact = exact, method = method, oneSided = oneSided,
                                             alpha = alpha, continuityCorrection = continuityCorrection,
                                             pooledVariance = pooledVariance, step = step))
  },
  PlotNRatioIndSampBinom = function(totalSampleSize, proportion1, proportion2, exact, method, oneSided,
                                    alpha, continuityCorrection, pooledVariance, minRatio, maxRatio, step) {
    call_export("PlotNRatioIndSampBinom", list(totalSampleSize = totalSampleSize, proportion1 = proportion1,
                                               proportion2 = proportion2, exact = exact, method = method,
                                               oneSided = oneSided, alpha = alpha,
                                               continuityCorrection = continuityCorrection,
                                               pooledVariance = pooledVariance, minRatio = minRatio,
                                               maxRatio = maxRatio, step = step))
  },
  PlotRiskDiffIndSampBinom = function(sampleSize1, sampleSize2, proportion1, exact, method, oneSided, alpha,
                                      continuityCorrection, pooledVariance, step) {
    call_export("PlotRiskDiffIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                                 proportion1 = proportion1, exact = exact, method = method,
                                                 oneSided = oneSided, alpha = alpha,
                                                 continuityCorrection = continuityCorrection,
                                                 pooledVariance = pooledVariance, step = step))
  },
  PlotRiskRatioIndSampBinom = function(sampleSize1, sampleSize2, proportion1, exact, method, oneSided, alpha,
                                       continuityCorrection, pooledVariance, minRatio, maxRatio, step) {
    call_export("PlotRiskRatioIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                                  proportion1 = proportion1, exact = exact, method = method,
                                                  oneSided = oneSided, alpha = alpha,
                                                  continuityCorrection = continuityCorrection,
                                                  pooledVariance = pooledVariance, minRatio = minRatio,
                                                  maxRatio = maxRatio, step = step))
  },
  PlotOddsRatioIndSampBinom = function(sampleSize1, sampleSize2, proportion1, exact, method, oneSided, alpha,
                                       continuityCorrection, pooledVariance, minRatio, maxRatio, step) {
    call_export("PlotOddsRatioIndSampBinom", list(sampleSize1 = sampleSize1, sampleSize2 = sampleSize2,
                                                  proportion1 = proportion1, exact = exact, method = method,
                                                  oneSided = oneSided, alpha = alpha,
                                                  continuityCorrection = continuityCorrection,
                                                  pooledVariance = pooledVariance, minRatio = minRatio,
                                                  maxRatio = maxRatio, step = step))
  },
  PowerbyOneSampPearson = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided, adjustBias,
                                   alpha) {
    call_export("PowerbyOneSampPearson", list(sampleSize = sampleSize,
                                              alternativeCorrelation = alternativeCorrelation,
                                              nullCorrelation = nullCorrelation, oneSided = oneSided,
                                              adjustBias = adjustBias, alpha = alpha))
  },
  PowerbyOneSampSpearman = function(sampleSize, alternativeCorrelation, nullCorrelation, varianceMethod,
                                    oneSided, alpha) {
    call_export("PowerbyOneSampSpearman", list(sampleSize = sampleSize,
                                               alternativeCorrelation = alternativeCorrelation,
                                               nullCorrelation = nullCorrelation,
                                               varianceMethod = varianceMethod, oneSided = oneSided,
                                               alpha = alpha))
  },
  PowerbyOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, nullCorrelation,
                                   oneSided, alpha) {
    call_export("PowerbyOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                              alternativeCorrelation = alternativeCorrelation,
                                              nullCorrelation = nullCorrelation, oneSided = oneSided,
                                              alpha = alpha))
  },
  PowerReversebyOneSampPearson = function(power, alternativeCorrelation, nullCorrelation, oneSided,
                                          adjustBias, alpha) {
    call_export("PowerReversebyOneSampPearson", list(power = power,
                                                     alternativeCorrelation = alternativeCorrelation,
                                                     nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                     adjustBias = adjustBias, alpha = alpha))
  },
  PowerReversebyOneSampSpearman = function(power, alternativeCorrelation, nullCorrelation, varianceMethod,
                                           oneSided, alpha) {
    call_export("PowerReversebyOneSampSpearman", list(power = power,
                                                      alternativeCorrelation = alternativeCorrelation,
                                                      nullCorrelation = nullCorrelation,
                                                      varianceMethod = varianceMethod, oneSided = oneSided,
                                                      alpha = alpha))
  },
  PowerReversebyOneSampPartial = function(power, partialledOut, alternativeCorrelation, nullCorrelation,
                                          oneSided, alpha) {
    call_export("PowerReversebyOneSampPartial", list(power = power, partialledOut = partialledOut,
                                                     alternativeCorrelation = alternativeCorrelation,
                                                     nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                     alpha = alpha))
  },
  HalfCIOneSampPearson = function(sampleSize, correlation, adjustBias, alpha) {
    call_export("HalfCIOneSampPearson", list(sampleSize = sampleSize, correlation = correlation,
                                             adjustBias = adjustBias, alpha = alpha))
  },
  HalfCIOneSampSpearman = function(sampleSize, correlation, varianceMethod, alpha) {
    call_export("HalfCIOneSampSpearman", list(sampleSize = sampleSize, correlation = correlation,
                                              varianceMethod = varianceMethod, alpha = alpha))
  },
  HalfCIOneSampPartial = function(sampleSize, partialledOut, correlation, alpha) {
    call_export("HalfCIOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                             correlation = correlation, alpha = alpha))
  },
  PowerReversebyHalfCIOneSampPearson = function(halfWidth, correlation, adjustBias, alpha) {
    call_export("PowerReversebyHalfCIOneSampPearson", list(halfWidth = halfWidth, correlation = correlation,
                                                           adjustBias = adjustBias, alpha = alpha))
  },
  PowerReversebyHalfCIOneSampSpearman = function(halfWidth, correlation, varianceMethod, alpha) {
    call_export("PowerReversebyHalfCIOneSampSpearman", list(halfWidth = halfWidth, correlation = correlation,
                                                            varianceMethod = varianceMethod, alpha = alpha))
  },
  PowerReversebyHalfCIOneSampPartial = function(halfWidth, partialledOut, correlation, alpha) {
    call_export("PowerReversebyHalfCIOneSampPartial", list(halfWidth = halfWidth,
                                                           partialledOut = partialledOut,
                                                           correlation = correlation, alpha = alpha))
  },
  PlotNOneSampPearson = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided, adjustBias,
                                 alpha, sampleSizeFrom, sampleSizeTo) {
    call_export("PlotNOneSampPearson", list(sampleSize = sampleSize,
                                            alternativeCorrelation = alternativeCorrelation,
                                            nullCorrelation = nullCorrelation, oneSided = oneSided,
                                            adjustBias = adjustBias, alpha = alpha,
                                            sampleSizeFrom = sampleSizeFrom, sampleSizeTo = sampleSizeTo))
  },
  PlotNullOneSampPearson = function(sampleSize, alternativeCorrelation, oneSided, adjustBias, alpha, step) {
    call_export("PlotNullOneSampPearson", list(sampleSize = sampleSize,
                                               alternativeCorrelation = alternativeCorrelation,
                                               oneSided = oneSided, adjustBias = adjustBias, alpha = alpha,
                                               step = step))
  },
  PlotAlterOneSampPearson = function(sampleSize, nullCorrelation, oneSided, adjustBias, alpha, step) {
    call_export("PlotAlterOneSampPearson", list(sampleSize = sampleSize, nullCorrelation = nullCorrelation,
                                                oneSided = oneSided, adjustBias = adjustBias, alpha = alpha,
                                                step = step))
  },
  PlotRiskDiffOneSampPearson = function(sampleSize, nullCorrelation, oneSided, adjustBias, alpha, step) {
    call_export("PlotRiskDiffOneSampPearson", list(sampleSize = sampleSize,
                                                   nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                   adjustBias = adjustBias, alpha = alpha, step = step))
  },
  PlotNRiskDiffOneSampPearson = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided,
                                         adjustBias, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNRiskDiffOneSampPearson", list(sampleSize = sampleSize,
                                                    alternativeCorrelation = alternativeCorrelation,
                                                    nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                    adjustBias = adjustBias, alpha = alpha,
                                                    sampleSizeFrom = sampleSizeFrom,
                                                    sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNNullOneSampPearson = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided,
                                     adjustBias, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNNullOneSampPearson", list(sampleSize = sampleSize,
                                                alternativeCorrelation = alternativeCorrelation,
                                                nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                adjustBias = adjustBias, alpha = alpha,
                                                sampleSizeFrom = sampleSizeFrom, sampleSizeTo = sampleSizeTo,
                                                step = step))
  },
  PlotNAlterOneSampPearson = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided,
                                      adjustBias, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNAlterOneSampPearson", list(sampleSize = sampleSize,
                                                 alternativeCorrelation = alternativeCorrelation,
                                                 nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                 adjustBias = adjustBias, alpha = alpha,
                                                 sampleSizeFrom = sampleSizeFrom,
                                                 sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNullAlterOneSampPearson = function(sampleSize, oneSided, adjustBias, alpha, step) {
    call_export("PlotNullAlterOneSampPearson", list(sampleSize = sampleSize, oneSided = oneSided,
                                                    adjustBias = adjustBias, alpha = alpha, step = step))
  },
  PlotNOneSampSpearman = function(sampleSize, alternativeCorrelation, nullCorrelation, varianceMethod,
                                  oneSided, alpha, sampleSizeFrom, sampleSizeTo) {
    call_export("PlotNOneSampSpearman", list(sampleSize = sampleSize,
                                             alternativeCorrelation = alternativeCorrelation,
                                             nullCorrelation = nullCorrelation,
                                             varianceMethod = varianceMethod, oneSided = oneSided,
                                             alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                             sampleSizeTo = sampleSizeTo))
  },
  PlotNullOneSampSpearman = function(sampleSize, alternativeCorrelation, varianceMethod, oneSided, alpha,
                                     step) {
    call_export("PlotNullOneSampSpearman", list(sampleSize = sampleSize,
                                                alternativeCorrelation = alternativeCorrelation,
                                                varianceMethod = varianceMethod, oneSided = oneSided,
                                                alpha = alpha, step = step))
  },
  PlotAlterOneSampSpearman = function(sampleSize, nullCorrelation, varianceMethod, oneSided, alpha, step) {
    call_export("PlotAlterOneSampSpearman", list(sampleSize = sampleSize, nullCorrelation = nullCorrelation,
                                                 varianceMethod = varianceMethod, oneSided = oneSided,
                                                 alpha = alpha, step = step))
  },
  PlotRiskDiffOneSampSpearman = function(sampleSize, nullCorrelation, varianceMethod, oneSided, alpha,
                                         step) {
    call_export("PlotRiskDiffOneSampSpearman", list(sampleSize = sampleSize,
                                                    nullCorrelation = nullCorrelation,
                                                    varianceMethod = varianceMethod, oneSided = oneSided,
                                                    alpha = alpha, step = step))
  },
  PlotNRiskDiffOneSampSpearman = function(sampleSize, alternativeCorrelation, nullCorrelation,
                                          varianceMethod, oneSided, alpha, sampleSizeFrom, sampleSizeTo,
                                          step) {
    call_export("PlotNRiskDiffOneSampSpearman", list(sampleSize = sampleSize,
                                                     alternativeCorrelation = alternativeCorrelation,
                                                     nullCorrelation = nullCorrelation,
                                                     varianceMethod = varianceMethod, oneSided = oneSided,
                                                     alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                     sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNNullOneSampSpearman = function(sampleSize, alternativeCorrelation, nullCorrelation, varianceMethod,
                                      oneSided, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNNullOneSampSpearman", list(sampleSize = sampleSize,
                                                 alternativeCorrelation = alternativeCorrelation,
                                                 nullCorrelation = nullCorrelation,
                                                 varianceMethod = varianceMethod, oneSided = oneSided,
                                                 alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                 sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNAlterOneSampSpearman = function(sampleSize, alternativeCorrelation, nullCorrelation, varianceMethod,
                                       oneSided, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNAlterOneSampSpearman", list(sampleSize = sampleSize,
                                                  alternativeCorrelation = alternativeCorrelation,
                                                  nullCorrelation = nullCorrelation,
                                                  varianceMethod = varianceMethod, oneSided = oneSided,
                                                  alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                  sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNullAlterOneSampSpearman = function(sampleSize, varianceMethod, oneSided, alpha, step) {
    call_export("PlotNullAlterOneSampSpearman", list(sampleSize = sampleSize,
                                                     varianceMethod = varianceMethod, oneSided = oneSided,
                                                     alpha = alpha, step = step))
  },
  PlotNOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, nullCorrelation,
                                 oneSided, alpha, sampleSizeFrom, sampleSizeTo) {
    call_export("PlotNOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                            alternativeCorrelation = alternativeCorrelation,
                                            nullCorrelation = nullCorrelation, oneSided = oneSided,
                                            alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                            sampleSizeTo = sampleSizeTo))
  },
  PlotNullOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, oneSided, alpha,
                                    step) {
    call_export("PlotNullOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                               alternativeCorrelation = alternativeCorrelation,
                                               oneSided = oneSided, alpha = alpha, step = step))
  },
  PlotAlterOneSampPartial = function(sampleSize, partialledOut, nullCorrelation, oneSided, alpha, step) {
    call_export("PlotAlterOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                alpha = alpha, step = step))
  },
  PlotRiskDiffOneSampPartial = function(sampleSize, partialledOut, nullCorrelation, oneSided, alpha, step) {
    call_export("PlotRiskDiffOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                   nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                   alpha = alpha, step = step))
  },
  PlotNRiskDiffOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, nullCorrelation,
                                         oneSided, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNRiskDiffOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                    alternativeCorrelation = alternativeCorrelation,
                                                    nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                    alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                    sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNNullOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, nullCorrelation,
                                     oneSided, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNNullOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                alternativeCorrelation = alternativeCorrelation,
                                                nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNAlterOneSampPartial = function(sampleSize, partialledOut, alternativeCorrelation, nullCorrelation,
                                      oneSided, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNAlterOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                 alternativeCorrelation = alternativeCorrelation,
                                                 nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                 alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                                 sampleSizeTo = sampleSizeTo, step = step))
  },
  PlotNullAlterOneSampPartial = function(sampleSize, partialledOut, oneSided, alpha, step) {
    call_export("PlotNullAlterOneSampPartial", list(sampleSize = sampleSize, partialledOut = partialledOut,
                                                    oneSided = oneSided, alpha = alpha, step = step))
  },
  PlotNPartialoutOneSampPartial = function(sampleSize, alternativeCorrelation, nullCorrelation, oneSided,
                                           alpha) {
    call_export("PlotNPartialoutOneSampPartial", list(sampleSize = sampleSize,
                                                      alternativeCorrelation = alternativeCorrelation,
                                                      nullCorrelation = nullCorrelation, oneSided = oneSided,
                                                      alpha = alpha))
  },
  Powerbymlr = function(sampleSize, predictors, testedPredictors, fullModelFit, reducedRSquared,
                        randomPredictors, includeIntercept, alpha) {
    call_export("Powerbymlr", list(sampleSize = sampleSize, predictors = predictors,
                                   testedPredictors = testedPredictors, fullModelFit = fullModelFit,
                                   reducedRSquared = reducedRSquared, randomPredictors = randomPredictors,
                                   includeIntercept = includeIntercept, alpha = alpha))
  },
  PowerbymlrwES = function(sampleSize, predictors, testedPredictors, effectSize, randomPredictors,
                           includeIntercept, alpha) {
    call_export("PowerbymlrwES", list(sampleSize = sampleSize, predictors = predictors,
                                      testedPredictors = testedPredictors, effectSize = effectSize,
                                      randomPredictors = randomPredictors,
                                      includeIntercept = includeIntercept, alpha = alpha))
  },
  PowerReversebymlr = function(power, predictors, testedPredictors, fullModelFit, reducedRSquared,
                               randomPredictors, includeIntercept, alpha) {
    call_export("PowerReversebymlr", list(power = power, predictors = predictors,
                                          testedPredictors = testedPredictors, fullModelFit = fullModelFit,
                                          reducedRSquared = reducedRSquared,
                                          randomPredictors = randomPredictors,
                                          includeIntercept = includeIntercept, alpha = alpha))
  },
  PowerReversebymlrwES = function(power, predictors, testedPredictors, effectSize, randomPredictors,
                                  includeIntercept, alpha) {
    call_export("PowerReversebymlrwES", list(power = power, predictors = predictors,
                                             testedPredictors = testedPredictors, effectSize = effectSize,
                                             randomPredictors = randomPredictors,
                                             includeIntercept = includeIntercept, alpha = alpha))
  },
  PlotNmlr = function(predictors, testedPredictors, fullModelFit, reducedRSquared, randomPredictors,
                      includeIntercept, alpha, sampleSizeFrom, sampleSizeTo) {
    call_export("PlotNmlr", list(predictors = predictors, testedPredictors = testedPredictors,
                                 fullModelFit = fullModelFit, reducedRSquared = reducedRSquared,
                                 randomPredictors = randomPredictors, includeIntercept = includeIntercept,
                                 alpha = alpha, sampleSizeFrom = sampleSizeFrom, sampleSizeTo = sampleSizeTo))
  },
  PlotNmlrFES = function(predictors, testedPredictors, effectSize, randomPredictors, includeIntercept, alpha,
                         sampleSizeFrom, sampleSizeTo) {
    call_export("PlotNmlrFES", list(predictors = predictors, testedPredictors = testedPredictors,
                                    effectSize = effectSize, randomPredictors = randomPredictors,
                                    includeIntercept = includeIntercept, alpha = alpha,
                                    sampleSizeFrom = sampleSizeFrom, sampleSizeTo = sampleSizeTo))
  },
  PlotESmlr = function(sampleSize, predictors, testedPredictors, randomPredictors, includeIntercept, alpha,
                       step) {
    call_export("PlotESmlr", list(sampleSize = sampleSize, predictors = predictors,
                                  testedPredictors = testedPredictors, randomPredictors = randomPredictors,
                                  includeIntercept = includeIntercept, alpha = alpha, step = step))
  },
  PlotCorrmlr = function(sampleSize, predictors, testedPredictors, randomPredictors, includeIntercept, alpha,
                         step) {
    call_export("PlotCorrmlr", list(sampleSize = sampleSize, predictors = predictors,
                                    testedPredictors = testedPredictors, randomPredictors = randomPredictors,
                                    includeIntercept = includeIntercept, alpha = alpha, step = step))
  },
  PlotNaCorrmlr = function(sampleSize, predictors, testedPredictors, fullModelFit, reducedRSquared,
                           randomPredictors, includeIntercept, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNaCorrmlr", list(sampleSize = sampleSize, predictors = predictors,
                                      testedPredictors = testedPredictors, fullModelFit = fullModelFit,
                                      reducedRSquared = reducedRSquared, randomPredictors = randomPredictors,
                                      includeIntercept = includeIntercept, alpha = alpha,
                                      sampleSizeFrom = sampleSizeFrom, sampleSizeTo = sampleSizeTo,
                                      step = step))
  },
  PlotNaESmlr = function(sampleSize, predictors, testedPredictors, effectSize, randomPredictors,
                         includeIntercept, alpha, sampleSizeFrom, sampleSizeTo, step) {
    call_export("PlotNaESmlr", list(sampleSize = sampleSize, predictors = predictors,
                                    testedPredictors = testedPredictors, effectSize = effectSize,
                                    randomPredictors = randomPredictors, includeIntercept = includeIntercept,
                                    alpha = alpha, sampleSizeFrom = sampleSizeFrom,
                                    sampleSizeTo = sampleSizeTo, step = step))
  }
)
