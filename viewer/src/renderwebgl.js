// The WebGL back-end: the same triangle meshes as the 2D back-end, drawn with one texture per tile.

const VERTEX = `attribute vec2 p; attribute vec2 t; uniform vec2 s; varying vec2 v;
void main(){ v = t; gl_Position = vec4(p.x / s.x * 2.0 - 1.0, 1.0 - p.y / s.y * 2.0, 0.0, 1.0); }`;
const FRAGMENT = `precision mediump float; uniform sampler2D i; varying vec2 v;
void main(){ gl_FragColor = texture2D(i, v); }`;

function compile(gl, type, source) {
  const shader = gl.createShader(type);
  gl.shaderSource(shader, source);
  gl.compileShader(shader);
  if (!gl.getShaderParameter(shader, gl.COMPILE_STATUS)) throw new Error(gl.getShaderInfoLog(shader));
  return shader;
}

// Returns a renderer, or null when the browser offers no working WebGL.
export function createWebGLRenderer(canvas) {
  let gl = null;
  try {
    const attributes = { alpha: false, antialias: false, preserveDrawingBuffer: true };
    gl = canvas.getContext('webgl', attributes) || canvas.getContext('experimental-webgl', attributes);
  } catch (e) {
    gl = null;
  }
  if (!gl) return null;
  try {
    return new WebGLRenderer(canvas, gl);
  } catch (e) {
    console.warn('vantoViewer: WebGL unusable:', e.message);
    return null;
  }
}

class WebGLRenderer {
  constructor(canvas, gl) {
    this.canvas = canvas;
    this.gl = gl;
    this.webgl = true;
    this.maxPixelRatio = 2;
    const program = gl.createProgram();
    gl.attachShader(program, compile(gl, gl.VERTEX_SHADER, VERTEX));
    gl.attachShader(program, compile(gl, gl.FRAGMENT_SHADER, FRAGMENT));
    gl.linkProgram(program);
    if (!gl.getProgramParameter(program, gl.LINK_STATUS)) throw new Error(gl.getProgramInfoLog(program));
    gl.useProgram(program);
    this.size = gl.getUniformLocation(program, 's');
    this.position = gl.getAttribLocation(program, 'p');
    this.texcoord = gl.getAttribLocation(program, 't');
    this.positions = gl.createBuffer();
    this.texcoords = gl.createBuffer();
    this.textures = new Map();
    gl.enableVertexAttribArray(this.position);
    gl.enableVertexAttribArray(this.texcoord);
  }

  // Starts a frame of width x height CSS pixels on the canvas, or on `framebuffer` (a WebXR
  // layer's, sized in its own pixels).
  begin(width, height, ratio, framebuffer = null) {
    const c = this.canvas;
    const gl = this.gl;
    gl.bindFramebuffer(gl.FRAMEBUFFER, framebuffer);
    if (!framebuffer && (c.width !== Math.round(width * ratio) || c.height !== Math.round(height * ratio))) {
      c.width = Math.round(width * ratio);
      c.height = Math.round(height * ratio);
    }
    this.frame = { height, ratio };
    gl.viewport(0, 0, Math.round(width * ratio), Math.round(height * ratio));
    gl.uniform2f(this.size, width, height);
    gl.clearColor(0, 0, 0, 1);
    gl.clear(gl.COLOR_BUFFER_BIT);
  }

  // The following tiles go into the rectangle x, y, w, h (from the top left), their positions
  // counted from its corner.
  region(x, y, w, h) {
    const r = this.frame.ratio;
    this.gl.viewport(Math.round(x * r), Math.round((this.frame.height - y - h) * r), Math.round(w * r), Math.round(h * r));
    this.gl.uniform2f(this.size, w, h);
  }

  texture(tile) {
    let texture = this.textures.get(tile.key);
    if (!texture) {
      const gl = this.gl;
      texture = gl.createTexture();
      gl.bindTexture(gl.TEXTURE_2D, texture);
      gl.texImage2D(gl.TEXTURE_2D, 0, gl.RGB, gl.RGB, gl.UNSIGNED_BYTE, tile.img);
      gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MIN_FILTER, gl.LINEAR);
      gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_MAG_FILTER, gl.LINEAR);
      gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_S, gl.CLAMP_TO_EDGE);
      gl.texParameteri(gl.TEXTURE_2D, gl.TEXTURE_WRAP_T, gl.CLAMP_TO_EDGE);
      this.textures.set(tile.key, texture);
    }
    return texture;
  }

  forget(tile) {
    const texture = this.textures.get(tile.key);
    if (texture) this.gl.deleteTexture(texture);
    this.textures.delete(tile.key);
  }

  drawTile(tile, mesh) {
    const gl = this.gl;
    const T = mesh.triangles;
    const pos = new Float32Array(T.length * 2);
    const uv = new Float32Array(T.length * 2);
    const w = tile.rect.w;
    const h = tile.rect.h;
    for (let i = 0; i < T.length; i++) {
      const k = T[i] * 2;
      pos[i * 2] = mesh.positions[k];
      pos[i * 2 + 1] = mesh.positions[k + 1];
      uv[i * 2] = mesh.uvs[k] / w;
      uv[i * 2 + 1] = mesh.uvs[k + 1] / h;
    }
    gl.bindTexture(gl.TEXTURE_2D, this.texture(tile));
    gl.bindBuffer(gl.ARRAY_BUFFER, this.positions);
    gl.bufferData(gl.ARRAY_BUFFER, pos, gl.STREAM_DRAW);
    gl.vertexAttribPointer(this.position, 2, gl.FLOAT, false, 0, 0);
    gl.bindBuffer(gl.ARRAY_BUFFER, this.texcoords);
    gl.bufferData(gl.ARRAY_BUFFER, uv, gl.STREAM_DRAW);
    gl.vertexAttribPointer(this.texcoord, 2, gl.FLOAT, false, 0, 0);
    gl.drawArrays(gl.TRIANGLES, 0, T.length);
  }

  end() {}
}
