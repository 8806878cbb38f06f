// The extension for VS Code, as far as it can be tried without the editor: its manifest, its language file, and its
// activation with stand-ins for what the editor gives. extension_test.js FOLDER_OF_THE_EXTENSION
const assert = require("node:assert/strict");
const fs = require("node:fs");
const Module = require("node:module");
const path = require("node:path");

const folder = path.resolve(process.argv[2]);
const read = (name) => JSON.parse(fs.readFileSync(path.join(folder, name), "utf8"));
const manifest = read("package.json");

function checkManifest() {
  assert.match(manifest.name, /^[a-z0-9][a-z0-9-]*$/);
  assert.match(manifest.publisher, /^[a-z0-9][a-z0-9-]*$/i);
  assert.match(manifest.version, /^\d+\.\d+\.\d+$/);
  assert.match(manifest.engines.vscode, /^\^\d+\.\d+\.\d+$/);
  for (const field of ["displayName", "description", "license", "categories"]) assert.ok(manifest[field], field);
  assert.ok(fs.existsSync(path.join(folder, manifest.main)), "main");
  const languages = manifest.contributes.languages;
  for (const language of languages) {
    assert.ok(language.extensions.includes(".bet"));
    assert.ok(fs.existsSync(path.join(folder, language.configuration)), language.configuration);
  }
  for (const event of manifest.activationEvents)
    assert.ok(languages.some((language) => event === `onLanguage:${language.id}`), event);
  for (const [name, property] of Object.entries(manifest.contributes.configuration.properties)) {
    assert.ok(name.startsWith("tessaryn.") && property.description, name);
    const type = Array.isArray(property.default) ? "array" : typeof property.default;
    assert.equal(type, property.type, name);
  }
  for (const scope of Object.keys(manifest.contributes.configurationDefaults))
    assert.ok(languages.some((language) => scope === `[${language.id}]`), scope);
}

function checkLanguage() {
  const language = read(manifest.contributes.languages[0].configuration);
  assert.equal(language.comments.lineComment, "'");
  const grows = new RegExp(language.indentationRules.increaseIndentPattern);
  const shrinks = new RegExp(language.indentationRules.decreaseIndentPattern);
  for (const [line, more, less] of [
    ["if comeout roll then", true, false],
    ["   do", true, false],
    ["else", true, true],
    ["endif", false, true],
    ["loop", false, true],
    ["if cs1 = 0 then bet 5 on field endif", false, false],
    ["bet 10 on passline", false, false],
    ["dontpass", false, false],
  ]) {
    assert.equal(grows.test(line), more, `${line}: grows`);
    assert.equal(shrinks.test(line), less, `${line}: shrinks`);
  }
}

// Runs the extension with what the editor and its client library would give it.
async function checkActivation() {
  const calls = [];
  const properties = manifest.contributes.configuration.properties;
  const vscode = {
    workspace: {
      getConfiguration: (section) => ({ get: (name, otherwise) => properties[`${section}.${name}`].default ?? otherwise }),
    },
  };
  class LanguageClient {
    constructor(id, name, server, client) {
      calls.push({ id, name, server, client });
    }
    start() {
      calls.push("start");
      return Promise.resolve();
    }
    stop() {
      calls.push("stop");
      return Promise.resolve();
    }
  }
  const load = Module._load;
  Module._load = (request, ...rest) =>
    request === "vscode" ? vscode : request === "vscode-languageclient/node" ? { LanguageClient } : load(request, ...rest);
  const extension = require(path.join(folder, manifest.main));
  assert.equal(extension.deactivate(), undefined);
  await extension.activate({ subscriptions: [] });
  await extension.deactivate();
  const [made, ...rest] = calls;
  assert.deepEqual(rest, ["start", "stop"]);
  assert.deepEqual(made.server, { command: "tessaryn-cli", args: ["lsp"] });
  assert.deepEqual(made.client.documentSelector.map((one) => one.language), [manifest.contributes.languages[0].id]);
  assert.deepEqual(made.client.initializationOptions, { players: [] });
  assert.equal(made.client.synchronize.configurationSection, "tessaryn");
}

checkManifest();
checkLanguage();
checkActivation().then(() => console.log("The extension: passed"));
