"""Distances on the globe between all pairs of some cities, by the haversine formula.

    PYTHONPATH=bindings/python DAKVMPX_LIBRARY=build/x86-64/libdakvmpx.so \
        python3 examples/python/great_circle.py

Checks itself against the angle between the position vectors, and a known distance.
"""

import sys

import numpy

import dakvmpx

RADIUS = 6371.0088  # km, of the sphere with the Earth's mean radius
CITIES = {
    "Berlin": (52.52, 13.405),
    "Tokyo": (35.6762, 139.6503),
    "Sydney": (-33.8688, 151.2093),
    "New York": (40.7128, -74.006),
    "Cape Town": (-33.9249, 18.4241),
}


def haversine(latitude, longitude):
    """Angles between all pairs of points, in radians."""
    d_lat = latitude[:, None] - latitude
    d_lon = longitude[:, None] - longitude
    cosine = dakvmpx.cos(latitude)
    h = dakvmpx.sin(d_lat / 2) ** 2 + cosine[:, None] * cosine * dakvmpx.sin(d_lon / 2) ** 2
    return 2 * dakvmpx.asin(dakvmpx.sqrt(h))


def by_vectors(latitude, longitude):
    """The same from the position vectors: the arc cosine of their products."""
    sin_lat, cos_lat = dakvmpx.sin_cos(latitude)
    sin_lon, cos_lon = dakvmpx.sin_cos(longitude)
    positions = numpy.stack([cos_lat * cos_lon, cos_lat * sin_lon, sin_lat])
    return dakvmpx.acos(numpy.clip(positions.T @ positions, -1, 1))


def main():
    latitude, longitude = numpy.radians(numpy.array(list(CITIES.values()))).T.copy()
    angles = haversine(latitude, longitude)
    names = list(CITIES)
    for i, name in enumerate(names):
        print(f"{name:10}", *(f"{RADIUS * angle:8.0f}" for angle in angles[i]))

    different = ~numpy.eye(len(names), dtype=bool)
    numpy.testing.assert_allclose(
        angles[different], by_vectors(latitude, longitude)[different], rtol=1e-14
    )
    numpy.testing.assert_array_equal(angles.diagonal(), 0)
    numpy.testing.assert_allclose(RADIUS * angles[0, 1], 8915.538859822807, rtol=1e-14)


if __name__ == "__main__":
    sys.exit(main())
