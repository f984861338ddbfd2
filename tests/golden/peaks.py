"""The symmetric peaks."""

from mpmath import cos, exp, fabs, log, mpc, mpf, pi, sin, sqrt
from laws import blocks, draw, one_or_two, peaks, row


def gauss(root_2):
    return lambda P, x: peaks(P[1], [A / (w * 1.253314137316) * exp(-((x - c) * root_2 / w) ** 2)
                                     for c, w, A in blocks(P, 3)])


row("Gauss", form="both", points=one_or_two + [([1, 3, 0.5, 2], 3.0)], derivative_law=gauss(1.414213562373))(
    gauss(sqrt(2)))


@row("GaussAmp", form="one", probe="plain", points=one_or_two + [([1, 0.5, -2, 3], 1.5), ([1, 0.5, 2, 3], 0.5)])
def gauss_amp(P, x):
    return peaks(P[1], [A * exp(-((x - c) / w) ** 2 / 2) for c, w, A in blocks(P, 3)])


def four_by_four(P):
    return [P[i + 1:i + 4] for i in range(1, len(P), 4)]


def gaussian_by_centre(P, x, peak):
    c, A, w = four_by_four(P)[peak]
    u = 2 * (x - c) / w
    return A * exp(-u ** 2 * 0.69314718055994) / (w * 1.06446701943122) * u * 2.77258872223978 / w


# The second peak's first slot is idle: the value ignores it and its derivative is reported as 1.
def gaussian(P, x):
    return peaks(P[1], [A * exp(-(2 * (x - c) / w) ** 2 * 0.69314718055994) / (w * 1.06446701943122)
                        for c, A, w in four_by_four(P)])


row("Gaussian", form="own", probe="plain", idle="own", derivatives=True,
    points=draw(6, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2)], x=(-2, 2))
    + draw(4, P=[(-1, 1), (-1, 0), (1, 4), (0.5, 2), (5, 6), (0, 1), (-4, -1), (0.5, 2)], x=(-2, 2))
    + [([0, 0, 1, 1], 0.5), ([1, 0.5, 3, -2], 1.5)],
    stated={2: lambda P, x: gaussian_by_centre(P, x, 0), 5: lambda P, x: 1 + 0 * x,
            6: lambda P, x: gaussian_by_centre(P, x, 1)})(gaussian)


@row("Lorentz", form="both", probe="plain", points=one_or_two)
def lorentz(P, x):
    return peaks(P[1], [2 * A / pi * w / (4 * (x - c) ** 2 + w ** 2) for c, w, A in blocks(P, 3)])


value_only = dict(form="refuse", probe="plain")

T = [0.314240376, 0.947788391, 1.59768264, 2.27950708, 3.02063703, 3.8897249]
C = [1.01172805, -0.75197147, 0.012557727, 0.0100220082, -0.000242068135, 5.00848061e-07]
S = [1.39323, 0.231152406, -0.155351466, 0.00621836624, 9.19082986e-05, -6.27525958e-07]


def voigt_function(X, Y, before):
    """Each node is one complex pole c / (X -+ t - i (Y + 1.5)); far out the poles correct a Gaussian."""
    K = before
    if Y > 0.85 or fabs(X) < 18.1 * Y + 1.65:
        for t, c, s in zip(T, C, S):
            left, right = 1 / mpc(X - t, -(Y + 1.5)), 1 / mpc(X + t, -(Y + 1.5))
            K += c * (left + right).imag - s * (left - right).real
        return K
    if fabs(X) < 12:
        K = exp(-X ** 2)
    for t, c, s in zip(T, C, S):
        for R, s in ((X - t, s), (X + t, -s)):
            pole = 1 / mpc(R, -(Y + 1.5))
            K += Y * (c * (R * pole.real - 1.5 * pole.imag) + s * (Y + 3) * pole.real) / (R ** 2 + 2.25)
    return K


# Far out the nodes fall with 1/X each and cancel down to 1/X^2: at thirty widths a hundredth is left.
@row("Voigt5", **value_only, slack=4,
     points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (0.5, 2)], x=(-2, 2))
     + draw(4, P=[(-1, 1), (-1, 1), (1, 4), (0.8, 1.2), (0.02, 0.1)], x=(3, 5))
     + [([0, 1, 2, 0.5, 3], 91.0),                                      # thirty widths out, region I
        ([0, 1, 2, 1, 0.1], 6.5), ([0, 1, 2, 1, 0.1], 31.0),            # region II, without and with |X| < 12
        ([1, 0, 2, -1, 0.5], 0.5), ([1, 0, 2, -1, -2], 0.5),            # negative widths
        ([0.5, -1, 2, 1, 0.5, 1, 3, 1.5, 1], 0.3),                      # carried from region I to region I
        ([0.5, -1, 2, 1, 0.5, 3, 3, 1, 0.05], 0.3),                     # region II starts with its exponential ..
        ([0.5, 0, 2, 1, 0.5, 20, 3, 1, 0.05, 1, 1, 1, 1], 0.3)])        # .. but not beyond |X| = 12
def voigt5(P, x):
    parts, K = [], mpf(0)
    for c, A, wG, wL in blocks(P, 4):
        K = voigt_function((x - c) * 1.665109222 / wG, wL * 0.832554611 / wG, K)
        parts.append(A * K * 0.939437278 / wG)
    return peaks(P[1], parts)


def bell(d, w):
    return 0.939437278 * exp(-2.77258872 * d ** 2 / w ** 2) / w


def lorentzian(d, w):
    return 0.636619772 * w / (4 * d ** 2 + w ** 2)


@row("PsdVoigt1", **value_only,
     points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (0, 1)], x=(-2, 2))
     + draw(4, P=[(-1, 1), (-1, 0), (1, 4), (0.5, 2), (0, 1), (0, 1), (-4, -1), (0.5, 2), (-0.5, 1.5)], x=(-2, 2))
     + [([0, 1, 2, 0.5, 0], 1.25), ([0, 1, 2, 0.5, 1], 1.25), ([0, 1, 2, 0.5, 0.3], 16.0)])
def psd_voigt1(P, x):
    return peaks(P[1], [A * ((1 - m) * bell(x - c, w) + m * lorentzian(x - c, w)) for c, A, w, m in blocks(P, 4)])


@row("PsdVoigt2", **value_only,
     points=draw(8, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (0.5, 2), (0, 1)], x=(-2, 2))
     + draw(4, P=[(-1, 1), (-1, 0), (1, 4), (0.5, 2), (0.5, 2), (0, 1),
                  (0, 1), (-4, -1), (0.5, 2), (0.5, 2), (-0.5, 1.5)], x=(-2, 2))
     + [([0, 1, 2, 0.5, 3, 0.3], 91.0)])
def psd_voigt2(P, x):
    return peaks(P[1], [A * ((1 - m) * bell(x - c, wG) + m * lorentzian(x - c, wL))
                        for c, A, wG, wL, m in blocks(P, 5)])


lanczos = [76.18009173, -86.50532033, 24.01409822, -1.231739516, 0.00120858003, -5.36382e-06]


def series_gamma(z):
    """The gamma function as the model has it, good to 2e-10."""
    if z < 1:
        return pi * (1 - z) / (sin(pi * (1 - z)) * series_gamma(2 - z))
    sum_ = 1 + sum(c / (z + k) for k, c in enumerate(lanczos))
    return 2.50662827465 * sum_ * (z + 4.5) ** (z - 0.5) * exp(-(z + 4.5))


def series_digamma(z):
    sum_ = 1 + sum(c / (z + k) for k, c in enumerate(lanczos))
    slope = -sum(c / (z + k) ** 2 for k, c in enumerate(lanczos))
    return log(z + 4.5) + (z - 0.5) / (z + 4.5) - 1 + slope / sum_


def model_gamma_prime(z):
    """Below 1 the derivative of v pi sin(v pi) / Gamma(1 + v), v = 1 - z: not that of the gamma function."""
    if z >= 1:
        return series_gamma(z) * series_digamma(z)
    v = 1 - z
    f = pi * v * sin(pi * v) / series_gamma(1 + v)
    return series_digamma(1 + v) * f - (pi * sin(pi * v) + pi ** 2 * v * cos(pi * v)) / series_gamma(1 + v)


def pearson7_by_shape(P, x):
    c, A, w, m = P[2:6]
    u, a = (x - c) / w, 2 ** (1 / m)
    s, q = sqrt(a - 1), 4 * (a - 1) * ((x - c) / w) ** 2 + 1
    Gm, Gh = series_gamma(m), series_gamma(m - 0.5)
    p, scale = q ** -m, A / (w * 1.77245385090551)
    return (2 * s * scale * p * (model_gamma_prime(m) + 1 - Gm / Gh * model_gamma_prime(m - 0.5)) / Gh
            - a * 0.693147 * scale * p * Gm / Gh / (m ** 2 * s)
            + (a * 2.77259 * u ** 2 / (m * q) - log(q)) * Gm)


# Through its logarithm the gamma function is taken from a difference of about 5.
@row("PearsonVII", form="both", query=0, probe="own", stated={5: pearson7_by_shape}, slack=2,
     points=draw(4, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (0.6, 1)], x=(-2, 2))
     + draw(4, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (1, 1.5)], x=(-2, 2))
     + draw(6, P=[(-1, 1), (-1, 1), (1, 4), (0.5, 2), (1.5, 8)], x=(-2, 2))
     + [([0, 1, 2, -1.5, 2], 1.3), ([0, 1, 2, 0.5, 1], 16.0), ([0, 1, 2, 0.5, 3], 16.0)])
def pearson7(P, x):
    c, A, w, m = P[2:6]
    a = 2 ** (1 / m)
    return P[1] + 2 * A * sqrt(a - 1) * series_gamma(m) / series_gamma(m - 0.5) / (w * 1.77245385090551) \
        * (1 + 4 * (a - 1) * ((x - c) / w) ** 2) ** -m
