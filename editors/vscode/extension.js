// Starts the language server of the command-line program for scripts (*.bet).
const vscode = require("vscode");
const { LanguageClient } = require("vscode-languageclient/node");

/** @type {LanguageClient | undefined} */
let client;

function activate() {
  const settings = vscode.workspace.getConfiguration("tessaryn");
  client = new LanguageClient(
    "tessaryn",
    "Auto-Bet",
    { command: settings.get("program", "tessaryn-cli"), args: ["lsp"] },
    {
      documentSelector: [{ language: "autobet" }],
      initializationOptions: { players: settings.get("players", []) },
      synchronize: { configurationSection: "tessaryn" },
    }
  );
  return client.start();
}

function deactivate() {
  return client ? client.stop() : undefined;
}

module.exports = { activate, deactivate };
