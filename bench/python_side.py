"""The same formulas in NumPy, with SciPy's difference Jacobian, and lmfit's built-in models where it has the law.

python_side.py WORKLOADS prints the times as JSON: per side, kind, model and number of points, in seconds.
"""
import json
import sys
import timeit

import lmfit
import numpy as np
import scipy
from scipy.optimize._numdiff import approx_derivative  # what least_squares takes its Jacobian from
from scipy.special import gamma, gammaln, i1e, wofz

SIZES = (1, 100, 1000, 100000)
ROUNDS = 5  # the fastest counts
FUNCTIONS = {'exp': np.exp, 'log': np.log, 'sin': np.sin, 'sqrt': np.sqrt, 'sign': np.sign, 'gamma': gamma,
             'lgamma': gammaln, 'i1e': i1e}


def voigt(P, x):
    z = ((x - P[1]) * 1.665109222 + 1j * P[4] * 0.832554611) / P[3]
    return P[0] + P[2] * wofz(z).real * 0.939437278 / P[3]


def law_of(work):
    """The formula as a function of the parameters and the columns."""
    if not work['formula']:
        return voigt
    names = [f'P{k + 1}' for k in range(len(work['P']))]
    variables = ['x', 'x2'][:len(work['from'])]
    # Two outputs, which a comma separates, are a tuple of columns.
    source = f"lambda {', '.join(names + variables)}: ({work['formula'].replace('^', '**')})"
    law = eval(source, FUNCTIONS)
    return lambda P, *x: law(*P, *x)


def lmfit_models():
    """lmfit's model of the law, a constant added where the law has an offset; with parameters near enough to time."""
    m = lmfit.models
    return {
        'Line': (m.LinearModel(), dict(slope=0.5, intercept=1)),
        'Gauss': (m.GaussianModel() + m.ConstantModel(), dict(amplitude=2, center=3, sigma=0.7, c=1)),
        'Lorentz': (m.LorentzianModel() + m.ConstantModel(), dict(amplitude=2, center=3, sigma=0.7, c=1)),
        'Voigt5': (m.VoigtModel() + m.ConstantModel(), dict(amplitude=2, center=5, sigma=0.7, gamma=0.5, c=1)),
        'PearsonVII': (m.Pearson7Model() + m.ConstantModel(), dict(amplitude=2, center=5, sigma=0.7, expon=1.5, c=1)),
        'Sine': (m.SineModel() + m.ConstantModel(), dict(amplitude=2, frequency=1.5, shift=0, c=1)),
        'ExpDec2': (m.ExponentialModel(prefix='a_') + m.ExponentialModel(prefix='b_') + m.ConstantModel(),
                    dict(a_amplitude=2, a_decay=1, b_amplitude=1, b_decay=2, c=1)),
        'Allometric1': (m.PowerLawModel(), dict(amplitude=2, exponent=1.5)),
        'Poly5': (m.PolynomialModel(degree=5), dict(c0=1, c1=2, c2=1, c3=2, c4=1, c5=0.5)),
    }


def columns(work, n):
    """The ranges of the data as the C++ side takes them, all rising."""
    share = (np.arange(n) + 0.5) / n
    return [a + (b - a) * share for a, b in zip(work['from'], work['to'])]


def fastest(call):
    timer = timeit.Timer(call)
    number, took = timer.autorange()
    number = max(1, int(number * 0.02 / took))
    return min(timer.repeat(ROUNDS, number)) / number


def main():
    with open(sys.argv[1], encoding='utf-8') as file:
        workloads = json.load(file)
    built_in, times = lmfit_models(), {}
    for name, work in workloads.items():
        law, P = law_of(work), np.array(work['P'])
        here, want = np.ravel(law(P, *columns(work, 1))), np.array(work['y'])
        if not np.allclose(here, want, rtol=1e-5, atol=1e-7):
            sys.exit(f'{name} is another law here: {here} instead of {want}')
        for n in SIZES:
            x = columns(work, n)
            times[f'numpy/value/{name}/{n}'] = fastest(lambda: law(P, *x))
            if len(want) == 1:
                times[f'numpy/gradient/{name}/{n}'] = fastest(
                    lambda: approx_derivative(lambda p: law(p, *x), P, method='2-point', f0=law(P, *x)))
            if name in built_in:
                model, values = built_in[name]
                parameters = model.make_params(**values)
                times[f'lmfit/value/{name}/{n}'] = fastest(lambda: model.eval(parameters, x=x[0]))
    versions = {'Python': sys.version.split()[0], 'NumPy': np.__version__, 'SciPy': scipy.__version__,
                'lmfit': lmfit.__version__}
    json.dump({'versions': versions, 'seconds': times}, sys.stdout, indent=1)


main()
