// The compiled program, on its way while the page's other scripts still come.
const address = new URL('./orvane-web.wasm', import.meta.url);

// Hosts that do not name its kind make it come whole first.
export const program = WebAssembly.compileStreaming(fetch(address)).catch(async () => {
  const answer = await fetch(address);
  if (!answer.ok) throw new Error(`orvane-web.wasm: ${answer.status}`);
  return WebAssembly.compile(await answer.arrayBuffer());
});
