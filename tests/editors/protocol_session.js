// A session of the language server with the protocol's own client library: protocol_session.js TESSARYN_CLI FOLDER.
// 77 where the library isn't among the modules of FOLDER (scripts/editor_clients.sh puts it there).
const assert = require("node:assert/strict");
const { spawn } = require("node:child_process");
const { createRequire } = require("node:module");
const path = require("node:path");

const [program, folder] = process.argv.slice(2);
let lsp;
try {
  lsp = createRequire(path.resolve(folder, "x"))("vscode-languageserver-protocol/node");
} catch (error) {
  console.log(`Skipped: no client of the protocol in ${folder}; scripts/editor_clients.sh installs it.`);
  process.exit(77);
}

const uri = "file:///evening.bet";
const text = [
  "' an evening",
  "if comeout roll then",
  "bet 10 on pasline",
  'gosub "more"',
  "endif",
  "return",
  '"more"',
  "cs1 = cs1 + 1",
  "return",
].join("\n");
const document = { textDocument: { uri } };
const at = (line, character) => ({ ...document, position: { line, character } });

// The next findings that the server publishes.
function nextFindings(connection) {
  return new Promise((resolve) => {
    const listening = connection.onNotification(lsp.PublishDiagnosticsNotification.type, (told) => {
      listening.dispose();
      resolve(told);
    });
  });
}

// Tokens come as five numbers each, places relative to the one before.
function wordsOf(data, legend, lines) {
  const words = [];
  let line = 0;
  let begin = 0;
  for (let i = 0; i < data.length; i += 5) {
    begin = data[i] === 0 ? begin + data[i + 1] : data[i + 1];
    line += data[i];
    words.push([lines[line].slice(begin, begin + data[i + 2]), legend.tokenTypes[data[i + 3]]]);
  }
  return words;
}

// As the protocol has it: edits don't overlap, and all are of the text before them.
function edited(whole, edits) {
  const lines = whole.split("\n");
  const offset = (place) => lines.slice(0, place.line).reduce((sum, one) => sum + one.length + 1, 0) + place.character;
  return [...edits]
    .sort((a, b) => offset(b.range.start) - offset(a.range.start))
    .reduce((now, e) => now.slice(0, offset(e.range.start)) + e.newText + now.slice(offset(e.range.end)), whole);
}

async function session(server) {
  const connection = lsp.createProtocolConnection(
    new lsp.StreamMessageReader(server.stdout),
    new lsp.StreamMessageWriter(server.stdin)
  );
  connection.onError(([error]) => assert.fail(error));
  connection.onUnhandledNotification((told) => assert.fail(`unknown: ${told.method}`));
  connection.listen();

  const { capabilities } = await connection.sendRequest(lsp.InitializeRequest.type, {
    processId: process.pid,
    rootUri: null,
    capabilities: { textDocument: { semanticTokens: { requests: { full: true } }, publishDiagnostics: {} } },
    initializationOptions: { players: ["Ann"] },
  });
  await connection.sendNotification(lsp.InitializedNotification.type, {});

  const published = nextFindings(connection);
  await connection.sendNotification(lsp.DidOpenTextDocumentNotification.type, {
    textDocument: { uri, languageId: "autobet", version: 1, text },
  });
  const { uri: toldOf, diagnostics } = await published;
  assert.equal(toldOf, uri);
  assert.equal(diagnostics.length, 1);
  assert.equal(diagnostics[0].severity, lsp.DiagnosticSeverity.Error);
  assert.deepEqual(diagnostics[0].range, { start: { line: 2, character: 10 }, end: { line: 2, character: 17 } });

  const actions = await connection.sendRequest(lsp.CodeActionRequest.type, {
    ...document,
    range: diagnostics[0].range,
    context: { diagnostics },
  });
  const mended = edited(text, actions[0].edit.changes[uri]);
  assert.match(mended, /bet 10 on passline\n/);

  const clean = nextFindings(connection);
  await connection.sendNotification(lsp.DidChangeTextDocumentNotification.type, {
    textDocument: { uri, version: 2 },
    contentChanges: [{ range: diagnostics[0].range, text: "passline" }],
  });
  assert.deepEqual((await clean).diagnostics, []);

  const offers = await connection.sendRequest(lsp.CompletionRequest.type, at(2, 14));
  const items = Array.isArray(offers) ? offers : offers.items;
  assert.ok(items.some((item) => item.label.startsWith("passline")), "completion");

  const hover = await connection.sendRequest(lsp.HoverRequest.type, at(2, 12));
  assert.ok(lsp.MarkupContent.is(hover.contents) && /pass/i.test(hover.contents.value), "hover");
  assert.equal(await connection.sendRequest(lsp.HoverRequest.type, at(0, 4)), null);

  const defined = await connection.sendRequest(lsp.DefinitionRequest.type, at(3, 9));
  const goal = Array.isArray(defined) ? defined[0] : defined;
  assert.equal(goal.uri, uri);
  assert.equal(goal.range.start.line, 6);

  const folds = await connection.sendRequest(lsp.FoldingRangeRequest.type, document);
  assert.ok(folds.some((fold) => fold.startLine === 1 && fold.endLine >= 3), "folding");

  const options = { tabSize: 3, insertSpaces: true };
  const edits = await connection.sendRequest(lsp.DocumentFormattingRequest.type, { ...document, options });
  const formatted = edited(mended, edits);
  assert.match(formatted, /\n   bet 10 on passline\n/);
  assert.equal(formatted.replace(/^ +/gm, ""), mended);

  const tokens = await connection.sendRequest(lsp.SemanticTokensRequest.type, document);
  const words = wordsOf(tokens.data, capabilities.semanticTokensProvider.legend, mended.split("\n"));
  for (const wanted of [["' an evening", "comment"], ["if", "keyword"], ["10", "number"]])
    assert.ok(words.some((word) => word[0] === wanted[0] && word[1] === wanted[1]), `token ${wanted}`);

  await assert.rejects(connection.sendRequest("textDocument/unheardOf", {}), { code: lsp.ErrorCodes.MethodNotFound });

  const emptied = nextFindings(connection);
  await connection.sendNotification(lsp.DidCloseTextDocumentNotification.type, document);
  assert.deepEqual((await emptied).diagnostics, []);
  await connection.sendRequest(lsp.ShutdownRequest.type);
  const ended = new Promise((resolve) => server.once("exit", resolve));
  await connection.sendNotification(lsp.ExitNotification.type);
  assert.equal(await ended, 0);
}

const server = spawn(program, ["lsp"], { stdio: ["pipe", "pipe", "inherit"] });
setTimeout(() => (server.kill(), assert.fail("the server doesn't answer")), 60_000).unref();
session(server).then(
  () => (console.log("A session of the protocol: passed"), process.exit(0)),
  (error) => (console.error(error), server.kill(), process.exit(1))
);
