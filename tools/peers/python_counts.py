"""How much of each is measured from Python."""

PASSES = 9
POWERS = 1_000_000
SIZES = 100_000
OF_STATSMODELS = 200  # of those sizes, spread over all
CALLS = 5000
