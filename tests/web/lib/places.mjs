// Where this tree has what the tests use.
import { fileURLToPath } from 'node:url';

const inTree = (path) => fileURLToPath(new URL(`../../../${path}`, import.meta.url));

export const site = process.env.ORVANE_SITE ?? inTree('build-web/site');
export const player = inTree('build/bin/orvane-script'); // of this machine
export const play = inTree('tests/play');
export const shots = inTree('tests/web/shots');
export const seen = inTree('build-web/screenshots');
