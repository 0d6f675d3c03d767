// What the program finds in a page, for node: its code, and the one sleep, in which whatever else
// waits has its turn.
Module.wasmBinary = require('fs').readFileSync(__filename.replace(/js$/, 'wasm'));
globalThis.page = {events: {wait: (milliseconds, wakeUp) => setImmediate(wakeUp)}};
