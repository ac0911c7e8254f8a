"""Arguments that are known to be hard, each with the reason; kept in the references whatever a search finds."""
import math

HARD = "hard points"

POINTS = {
    "NonCentralCdfT": [
        # 4 df overflows.
        (-2.5758, 1e308, 0.658), (2.5758, 1e308, -0.658),
        # Few degrees of freedom: the lower tail decays slowly in the noncentrality.
        (9.45826725069807, 0.6544135886965259, 82.05397126945694),
        (-9.45826725069807, 0.6544135886965259, -82.05397126945694),
        # An upper tail far out, by mirrored arguments.
        (-83.32140511898449, 1e5, -60.0), (83.32140511898449, 1e5, 60.0),
        # x^2 is near to overflow.
        (-1e150, 1.0, 1e-300), (-1e150, 0.5, 1.0), (1e150, 1.0, -1.0),
    ],
    "CdfBeta": [
        # The least doubles have few digits, whose logarithm has all.
        (1e-323, 0.00875265662885456, 1.2860247468396941),
    ],
    "NonCentralCdfF": [
        # With so many numerator degrees of freedom a sum from j = 0 on has more terms than any limit.
        (1.0, 2e9, 2e8, 10.0),
        (0.9992648146617316, 9496203.619284896, 127577.27587278091, 0.0012679852141533141),
        # Few denominator degrees of freedom, in the lower tail.
        (4.381326810060992, 20.31982724897139, 0.7719579085817929, 5621.337105137117),
    ],
    "IdfF": [
        # Whole degrees of freedom and a level at the median are often cases of their own, which end beside them.
        (0.499999995, 4.00000004, 3.9999999999999996), (0.5000000000005, 4.00000004, 2.000000000002),
        (0.499999995, 4.0, 3.99999996), (0.5000000000000001, 3.0, 3.0), (0.49999999999999994, 1.0000000000000002, 1.0),
    ],
    "IdfT": [
        (0.24999999999999997, 1.0000000000000002), (0.25000000000000006, 0.999999999999), (0.7499999924999999, 3.0),
        # An expansion in 1 / df^2 needs ever more terms towards few degrees of freedom and far tails.
        (0.45, 21.03), (0.45, 25.0), (0.025, 23.0), (0.975, 29.0), (1e-6, 38.5), (1e-12, 68.0), (1e-12, 85.0),
    ],
    "IdfBeta": [
        # The density is all but flat in the logit from -1000 to 1000.
        (0.5, 0.001, 0.001), (0.75, 0.001, 1.0),
        # The quantile is near 1e-1375, and mirrored 1.
        (0.39260395588132657, 0.0002960181908180621, 873.5970025551417),
        (1 - 0.39260395588132657, 873.5970025551417, 0.0002960181908180621),
    ],
    "CdfBivariateNormal": [
        # The distance of a from the line on which the conditional mean is b has to be known to many digits.
        (5.514707318293224, 5.514708302545551, 0.9999999999999057),
        (-4.3161454790126355, 4.316112452070297, -0.9999999998971792),
        (1.5, 1.4999999, 0.999999999999999), (-3.25, 3.2500001, -0.999999999999999), (-6.0, -6.000001, 0.99999999999999),
    ],
    "MeanOverChi": [
        # What changes is far narrower than the density.
        (99.9973393074677, -0.21656111369132494, 2.945309142612575, 4.337802358390937),
        # A small mean comes from far below the mode, and from far above it.
        (-18.70760170482175, 0.35159836730447047, 14.046756865190536, 0.8522901218754658),
        (-11.713607272417892, -0.001005637743008944, 27.17512653151639, 7.83416077941865),
        (-11.25554107683418, 0.017264216658349634, 27.1872660434334, 6.4257773442400214),
        (12.0, 27.0, 40.0, math.inf), (30.0, 80.0, 20.0, 10.0),
    ],
}

BEYOND = {
    "IdfT": [
        # The farthest that an expansion in 1 / df^2 reaches.
        (1e-100, 484.0), (1e-300, 1300.0),
        # Near the largest double.
        (0.8614569447262922, 0.0017998102132077715),
    ],
    "IdfF": [
        # Near the largest double.
        (0.9996526514112924, 3.0397211454143727, 0.02236032064481283),
    ],
    "NonCentralCdfT": [
        # Far upper tails, by mirrored arguments: what is left out of a sum must be small beside the result.
        (-51.690047082350624, 4328443.787022862, -20.398793036113027),
        (-73.17143203206693, 998.095322762789, -11.104820964387173),
        (-38.82656356211997, 57469.427122937035, -4.852764459228711),
        # Hardly any degrees of freedom.
        (0.5217366435071094, 0.001634375840187245, 76.81069252922045),
    ],
}


def wrong_side_points():
    """The noncentral t at x < 0 < delta and mirrored, around the places where a method for it may change.

    z is the normal deviate that has about this tail: near 2.7 sums begin to cancel. 3.6 and 100 degrees of freedom, and
    a noncentrality of 10, are such places too.
    """
    for delta in (0.1, 1.0, 3.0, 6.5):
        for df in (0.5, 1.0, 3.59, 3.61, 10.0, 99.9, 100.1, 1000.0, 1e6):
            for z in (2.6, 2.69, 2.71, 3.0, 5.0, 6.9):
                # (x + delta) / sqrt(1 + x^2 / (2 df)) = z, squared, for x.
                bend = 1 - z * z / (2 * df)
                root = delta * delta - bend * (delta * delta - z * z)
                if z <= delta or root < 0:
                    continue
                x = (z * z - delta * delta) / (delta + math.sqrt(root))
                yield (-x, df, delta)
                yield (x, df, -delta)
    for delta in (9.99, 10.01, 38.9, 39.1):
        for df in (0.5, 3.0, 50.0, 1e5):
            yield (-0.5, df, delta)
            yield (-2.0, df, delta)


def hard_points():
    """Function, arguments and region."""
    for function, points in POINTS.items():
        for arguments in points:
            yield function, arguments, HARD
    for function, points in BEYOND.items():
        for arguments in points:
            yield function, arguments, "beyond planning: " + HARD
    for arguments in wrong_side_points():
        yield "NonCentralCdfT", arguments, "wrong side of 0"
