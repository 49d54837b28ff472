import assert from 'node:assert/strict';

/** Asserts that the values of a column, if they are figures, stand in the order of `direction`. */
export function assertOrder(values, direction, what) {
  const figures = values.map(Number);
  if (!figures.some(Number.isNaN)) {
    const turned = direction === 'descending' ? -1 : 1;
    assert.deepEqual(figures, [...figures].sort((a, b) => turned * (a - b)), `${what}, ${direction}`);
  }
}

/** The values with each run of equal ones once: turning a column round turns these round. */
export const runs = (values) => values.filter((value, i) => value !== values[i - 1]);
