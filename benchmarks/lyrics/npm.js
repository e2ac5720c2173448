// Times other parsers on the texts given as files: node npm.js FOLDER-WITH-NODE_MODULES TEXT...
// Prints, as JSON, the seconds of the fastest call of each parser on each text, and how many timed
// lines it found. Warmed up first, and timed inside the process.
'use strict';
const fs = require('fs');
const { createRequire } = require('module');
const path = require('path');

const [folder, ...files] = process.argv.slice(2);
const from = createRequire(path.resolve(folder, 'package.json'));
const { Lrc } = from('lrc-kit');
const clrc = from('clrc');

const parsers = {
  'lrc-kit': text => Lrc.parse(text).lyrics,
  'clrc': text => clrc.parse(text).filter(line => line.type === 'lyric'),
};

function fastest(parse, text, seconds) {
  for (const end = performance.now() + 300; performance.now() < end;)
    parse(text);
  let calls = 1;
  const sample = count => {
    const start = performance.now();
    for (let i = 0; i < count; ++i)
      parse(text);
    return (performance.now() - start) / 1000;
  };
  while (sample(calls) < 0.003)
    calls *= 2;
  let best = Infinity;
  for (const end = performance.now() + 1000 * seconds; performance.now() < end;)
    best = Math.min(best, sample(calls) / calls);
  return best;
}

const result = {};
for (const file of files) {
  const text = fs.readFileSync(file, 'utf8');
  const times = result[path.basename(file, '.lrc')] = {};
  for (const [name, parse] of Object.entries(parsers))
    times[name] = { seconds: fastest(parse, text, 1), lines: parse(text).length };
}
console.log(JSON.stringify(result, null, 2));
