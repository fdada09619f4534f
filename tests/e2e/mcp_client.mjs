// Talks to `tavrinctl mcp` with the published client of the protocol, and prints the conversation:
//   mcp_client.mjs TAVRINCTL MODULES
// MODULES is the folder node_modules with @modelcontextprotocol/sdk.
import assert from "node:assert";
import path from "node:path";

const [tavrinctl, modules] = process.argv.slice(2);
const sdk = path.resolve(modules, "@modelcontextprotocol/sdk/dist/esm/client");
const { Client } = await import(`${sdk}/index.js`);
const { StdioClientTransport } = await import(`${sdk}/stdio.js`);

const client = new Client({ name: "try", version: "1" });
await client.connect(new StdioClientTransport({ command: tavrinctl, args: ["mcp"], env: process.env }));
console.log("server:", JSON.stringify(client.getServerVersion()));
await client.ping();
const { tools } = await client.listTools();
assert.equal(tools.length, 5);
for (const tool of tools) {
    assert(tool.annotations.readOnlyHint);
    const told = await client.callTool({ name: tool.name, arguments: {} });
    assert.deepEqual(JSON.parse(told.content[0].text), told.structuredContent);
    console.log(`${tool.name}:`, JSON.stringify(told.structuredContent).slice(0, 200));
}
await assert.rejects(client.callTool({ name: "rm", arguments: {} }), /Unknown tool/);
const stop = new AbortController();
const cancelled = client.callTool({ name: "sessions", arguments: {} }, undefined, { signal: stop.signal });
stop.abort();
await assert.rejects(cancelled);
assert((await client.callTool({ name: "memory_status", arguments: {} })).structuredContent.memory_total_bytes > 0);
await client.close();
console.log("1 passed, 0 failed");
