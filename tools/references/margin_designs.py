"""The designs whose references cases_margins.py computes, and published values, which it checks."""


def with_each(base, *variants):
    return [{**base, **variant} for variant in variants]


def ways(low, high, superiority):
    """What is to be shown: not worse, either way; better by a margin; equivalent."""
    return [{"margin": low, "non-inferiority": True}, {"margin": high, "non-inferiority": True},
            {"margin": superiority, "superiority": True}, {"equivalence": [low, high]}]


def crossed(bases, variants):
    return [{**base, **variant} for base in bases for variant in variants]


NI = {"non-inferiority": True}
SUPERIOR = {"superiority": True}

MEAN = crossed(
    [{"mean": mean, "test-value": 100, "sd": 10, "n": n} for mean, n in ((100, 2), (101, 5), (98, 40), (103, 250))],
    ways(-5, 5, 1))
MEAN += crossed([{"mean": 0.3, "sd": 2, "n": n, "alpha": alpha} for n, alpha in
                 ((3, 0.05), (12, 0.2), (60, 0.025), (60, 0.001), (1000, 0.01))], ways(-1, 1, 0.1))
MEAN += crossed([{"mean": 2, "sd": 1, "n": n} for n in (4, 20)], ways(-1, 1, 3))  # outside the limits
MEAN += crossed([{"mean": -0.5, "sd": 3, "n": n} for n in (30, 5000)],
                [{"margin": 0, **NI}, {"margin": 0, **SUPERIOR}, {"margin": -0.2, **SUPERIOR}, {"equivalence": [-3, 1]}])
MEAN += crossed([{"mean": 0, "sd": 1, "alpha": alpha, "power": power} for alpha in (0.05, 0.025) for power in (0.8, 0.95)],
                ways(-0.3, 0.3, -0.2)[:2] + [{"equivalence": [-0.3, 0.3]}])
MEAN += [{"mean": 0, "sd": 1, "n": 30, "alpha": 0.6, "equivalence": [-0.1, 0.1]}]

PAIRED = crossed([{"means": [25, means], "sds": [8, 7], "correlation": r, "n": n} for means, r, n in
                  ((25, 0.6, 30), (24, 0.6, 9), (26, 0, 100), (25, -0.5, 60))], ways(-4, 4, 0.5))
PAIRED += crossed([{"mean-difference": difference, "sd-difference": sd, "n": n, "alpha": alpha} for
                   difference, sd, n, alpha in ((0, 2.2, 3, 0.05), (0.2, 2.2, 20, 0.05), (0.5, 2.2, 80, 0.025),
                                                (-0.4, 2.2, 400, 0.01), (0, 0.01, 2, 0.05))], ways(-1.3, 1.3, 0.2))
PAIRED += crossed([{"mean-difference": 2, "sd-difference": 1, "n": n} for n in (3, 12)], ways(-1.5, 1.5, 1.9))
PAIRED += crossed([{"mean-difference": difference, "sd-difference": 5, "alpha": alpha, "power": power}
                   for difference in (0, 0.5) for alpha in (0.05, 0.025) for power in (0.8, 0.9)],
                  [{"margin": -2, **NI}, {"equivalence": [-2, 2]}])
PAIRED += crossed([{"means": [3, 1], "sds": [2, 3], "correlation": 0.5, "power": power} for power in (0.7, 0.9)],
                  [{"margin": 1, **SUPERIOR}, {"margin": -1, **NI}, {"equivalence": [0, 5]}])

TWO = crossed([{"means": [50, second], "sd": sd, "n": n} for second, sd, n in
               ((50, [10], [20]), (51, [10], [15, 40]), (48.5, [10, 14], [60, 30]), (50.5, [2, 20], [5, 300]))],
              ways(-4, 4, 0.5))
TWO += crossed([{"mean-difference": difference, "sd": [4], "n": n, "alpha": alpha} for difference, n, alpha in
                ((0, [2], 0.05), (0, [2, 3], 0.025), (0.5, [40], 0.025), (-0.6, [300, 200], 0.01), (0, [4000], 0.005))],
               ways(-1.5, 1.5, -0.3))
TWO += crossed([{"mean-ratio": ratio, "cv": cv, "n": n} for ratio, cv, n in
                ((1, 0.1, [3]), (0.95, 0.25, [60]), (1.05, 0.8, [150, 100]), (1.2, 0.3, [2000]))], ways(0.8, 1.25, 1.1))
TWO += crossed([{"mean-ratio": 1.3, "cv": cv, "n": [25, 30]} for cv in (0.3, 0.01)], [{}, {"one-sided": True}])
TWO += crossed([{"mean-difference": difference, "sd": sd, "ratio": ratio, "power": power} for difference, sd, ratio, power in
                ((0, [10], 1, 0.8), (0.3, [10], 2, 0.9), (-0.5, [10, 14], 0.5, 0.8))],
               [{"margin": -2, **NI}, {"equivalence": [-3, 2.5]}])
TWO += crossed([{"mean-ratio": 0.95, "cv": 0.25, "power": power} for power in (0.8, 0.9)],
               [{"margin": 0.8, **NI}, {"equivalence": [0.8, 1.25]}])

CROSSOVER = crossed([{"mean-difference": difference, "sd": sd, "n": n} for difference, sd, n in
                     ((0, 5, [10]), (1, 5, [25, 20]), (-0.5, 5, [2, 1]), (0.5, 0.4, [3]))], ways(-3, 3, 0.2))
CROSSOVER += crossed([{"mean-ratio": ratio, "cv": cv, "n": n, "alpha": alpha} for ratio, cv, n, alpha in
                      ((1, 0.1, [2], 0.05), (0.95, 0.25, [12], 0.05), (0.95, 0.25, [18, 17], 0.025), (1.1, 0.6, [200], 0.05),
                       (0.9, 0.3, [40], 0.001), (1.25, 0.2, [30], 0.05), (1.4, 0.2, [8], 0.05))], ways(0.8, 1.25, 1.05))
CROSSOVER += crossed([{"mean-difference": 3, "sd": 5, "n": [12, 9]}, {"mean-ratio": 1.2, "cv": 0.3, "n": [10]}],
                     [{}, {"one-sided": True}])
CROSSOVER += crossed([{"mean-difference": 0.5, "sd": 4, "power": power} for power in (0.8, 0.9)],
                     [{"margin": -1.5, **NI}, {"equivalence": [-2, 2]}])
CROSSOVER += [{"mean-ratio": 0.95, "cv": 0.25, "alpha": 0.025, "power": 0.8, "margin": 0.8, **NI},
              {"mean-ratio": 1.2, "cv": 0.3, "power": 0.9}]

DESIGNS = {"mean": MEAN, "paired-means": PAIRED, "two-means": TWO, "crossover": CROSSOVER}

BE = [0.8, 1.25]
HAUSCHKE = {0.1: (36, 8, 6, 10), 0.2: (134, 20, 16, 32), 0.3: (292, 40, 32, 68), 0.4: (502, 66, 54, 114)}
TABLE_5_1 = [({"mean-ratio": ratio, "cv": cv, "equivalence": BE, "power": 0.8}, total, 0,
              "Hauschke, Steinijans and Pigeot (2007), Bioequivalence Studies in Drug Development, table 5.1")
             for cv, totals in HAUSCHKE.items() for ratio, total in zip((0.85, 0.95, 1.0, 1.1), totals)]

CHOW_WANG = [({"mean-difference": difference, "sd": [0.3], "equivalence": [-0.2, 0.2], "power": 0.8}, total, 0,
              "Chow and Wang (2001), J. Pharmacokinet. Pharmacodyn. 28, 155-169, table III")
             for difference, total in ((0, 80), (0.05, 102), (0.1, 224), (0.15, 892))]

PUBLISHED = {
    "mean": [
        ({"mean": 2, "sd": 40, "n": 34, "margin": -18, "alpha": 0.025, **NI}, 0.807776685543458, 1e-9, "PASS 2025"),
        ({"mean": 2, "sd": 40, "n": 128, "margin": -8, "alpha": 0.025, **NI}, 0.801506202603035, 1e-9, "PASS 2025"),
        ({"mean": 2, "sd": 40, "margin": -18, "alpha": 0.025, "power": 0.8, **NI}, 34, 0, "PASS 2025"),
        ({"mean": 2, "sd": 40, "margin": -8, "alpha": 0.025, "power": 0.8, **NI}, 128, 0, "PASS 2025"),
    ],
    "paired-means": [
        ({"mean-difference": 0, "sd-difference": 2.2, "n": 33, "equivalence": [-1.3, 1.3]}, 0.906375592286, 1e-8,
         "R package lrstat 0.2.15"),
        ({"mean-difference": 0, "sd-difference": 2.2, "equivalence": [-1.3, 1.3], "power": 0.9}, 33, 0,
         "R package lrstat 0.2.15"),
    ],
    "two-means": [
        ({"mean-difference": 0, "sd": [2.2], "n": [63], "equivalence": [-1.3, 1.3]}, 0.90175844389, 1e-8,
         "R package lrstat 0.2.15"),
        ({"mean-difference": 20, "sd": [40, 40.0000000001], "n": [97, 49], "margin": 0, **SUPERIOR, "alpha": 0.025},
         0.8063, 5e-5, "PASS, means with the degrees of freedom of Satterthwaite"),
        ({"mean-ratio": 0.9, "cv": 0.5, "n": [300, 180], "margin": 1.1, "alpha": 0.01, **NI}, 0.985, 5e-4,
         "SAS/STAT, the POWER procedure, example of a noninferiority test with lognormal data"),
        ({"mean-ratio": 1.0, "cv": 0.5, "n": [300, 180], "margin": 1.1, "alpha": 0.01, **NI}, 0.424, 5e-4,
         "SAS/STAT, the POWER procedure, example of a noninferiority test with lognormal data"),
        ({"mean-ratio": 0.9, "cv": 0.6, "n": [300, 180], "margin": 1.1, "alpha": 0.01, **NI}, 0.933, 5e-4,
         "SAS/STAT, the POWER procedure, example of a noninferiority test with lognormal data"),
        ({"mean-ratio": 1.0, "cv": 0.6, "n": [300, 180], "margin": 1.1, "alpha": 0.01, **NI}, 0.306, 5e-4,
         "SAS/STAT, the POWER procedure, example of a noninferiority test with lognormal data"),
    ] + CHOW_WANG,
    "crossover": TABLE_5_1 + [
        ({"mean-ratio": 0.95, "cv": 0.25, "n": [12], "equivalence": BE}, 0.7391155, 5e-8, "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 0.95, "cv": 0.3, "n": [20], "equivalence": BE}, 0.8158453, 5e-8, "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 0.95, "cv": 0.25, "margin": 0.8, "alpha": 0.025, "power": 0.8, **NI}, 36, 0,
         "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 0.95, "cv": 0.25, "n": [18, 17], "margin": 0.8, "alpha": 0.025, **NI}, 0.808591, 5e-7,
         "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 1.24, "cv": 0.385, "n": [3500], "equivalence": BE}, 0.3568784, 5e-8, "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 1, "cv": 0.1, "n": [2], "equivalence": BE}, 0.479754125783862, 1e-13, "multiple precision"),
        ({"mean-ratio": 1, "cv": 0.1, "n": [2, 1], "equivalence": BE}, 0.222137910057019, 1e-13, "multiple precision"),
        ({"mean-ratio": 0.95, "cv": 0.4, "n": [6], "equivalence": BE}, 0.0284, 5e-5, "R package PowerTOST 1.5-6"),
        ({"mean-ratio": 0.95, "cv": 0.25, "n": [10, 12], "equivalence": BE}, 0.69129, 5e-6, "R package PowerTOST 1.5-6"),
    ],
}
