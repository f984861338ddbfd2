"""The one reserved row that computes, "errtest"."""

from laws import draw, row

row("errtest", form="both", points=draw(8, [(-2, 2), (-2, 2), (4, 9)], (-3, 3)))(
    lambda P, x: P[1] + P[2] * x + 0 * P[3])
