// Archives of small files, stored as they are: what a player takes along or brings.
const table = Array.from({ length: 256 }, (_, value) => {
  let rest = value;
  for (let bit = 0; bit < 8; ++bit) rest = rest & 1 ? (rest >>> 1) ^ 0xedb88320 : rest >>> 1;
  return rest >>> 0;
});
const sumOf = (bytes) => ~bytes.reduce((sum, byte) => (sum >>> 8) ^ table[(sum ^ byte) & 255], -1) >>> 0;

const local = 0x04034b50;
const central = 0x02014b50;
const end = 0x06054b50;
const utf8 = 0x0800;
const firstDay = 0x21; // 1 January 1980: equal files make equal archives

// Numbers as [bytes, value] in a row, the lowest byte first.
function numbers(...values) {
  const bytes = [];
  for (const [size, value] of values) for (let i = 0; i < size; ++i) bytes.push((value >>> (8 * i)) & 255);
  return Uint8Array.from(bytes);
}

// An archive of files, given as pairs of a name and bytes.
export function writeZip(entries) {
  const parts = [];
  const list = [];
  let at = 0;
  for (const [name, bytes] of entries) {
    const word = new TextEncoder().encode(name);
    const about = [[2, 20], [2, utf8], [2, 0], [2, 0], [2, firstDay], [4, sumOf(bytes)], [4, bytes.length], [4, bytes.length], [2, word.length], [2, 0]];
    list.push(numbers([4, central], [2, 20], ...about, [2, 0], [2, 0], [2, 0], [4, 0], [4, at]), word);
    const head = numbers([4, local], ...about);
    parts.push(head, word, bytes);
    at += head.length + word.length + bytes.length;
  }
  const size = list.reduce((sum, part) => sum + part.length, 0);
  const count = list.length / 2;
  const all = [...parts, ...list, numbers([4, end], [4, 0], [2, count], [2, count], [4, size], [4, at], [2, 0])];
  const whole = new Uint8Array(all.reduce((sum, part) => sum + part.length, 0));
  let to = 0;
  for (const part of all) {
    whole.set(part, to);
    to += part.length;
  }
  return whole;
}

async function unpack(bytes, method) {
  if (method === 0) return bytes;
  if (method !== 8) throw new Error('method');
  const stream = new Blob([bytes]).stream().pipeThrough(new DecompressionStream('deflate-raw'));
  return new Uint8Array(await new Response(stream).arrayBuffer());
}

// The files of an archive, stored or packed as archives mostly are, as pairs of a name and bytes. Null for what is
// no archive or not whole.
export async function readZip(bytes) {
  try {
    const view = new DataView(bytes.buffer, bytes.byteOffset, bytes.byteLength);
    let foot = bytes.length - 22;
    while (view.getUint32(foot, true) !== end) --foot;
    const entries = [];
    let at = view.getUint32(foot + 16, true);
    for (let left = view.getUint16(foot + 10, true); left > 0; --left) {
      if (view.getUint32(at, true) !== central) return null;
      const [method, sum, size, word, more, said, from] = [view.getUint16(at + 10, true), view.getUint32(at + 16, true), view.getUint32(at + 20, true), view.getUint16(at + 28, true), view.getUint16(at + 30, true), view.getUint16(at + 32, true), view.getUint32(at + 42, true)];
      const name = new TextDecoder().decode(bytes.subarray(at + 46, at + 46 + word));
      const begin = from + 30 + view.getUint16(from + 26, true) + view.getUint16(from + 28, true);
      const content = await unpack(bytes.slice(begin, begin + size), method);
      if (sumOf(content) !== sum) return null;
      if (!name.endsWith('/')) entries.push([name, content]);
      at += 46 + word + more + said;
    }
    return entries;
  } catch {
    return null;
  }
}
